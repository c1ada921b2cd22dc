struct S {
  int (*array[8])(int, char);
  int (*plain[2])[3];
  void (*(inner))(int);
};
static int (*const table[])(void) = {a, b};
static void *(*const volatile both)(void *, int) = set;
typedef int (*Handlers[SIZE])(int);
typedef A DEPRECATED(b) Name;
typedef struct S (*Pointer);
