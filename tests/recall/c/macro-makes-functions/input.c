#define GETTER(type, name) \
  type get_##name(void) { return 0; }
GETTER(int, size)
GETTER(long, offset)
#define DECLARE(name) struct name { int value; }; int name##_new(void);
DECLARE(node)
int last(void);
