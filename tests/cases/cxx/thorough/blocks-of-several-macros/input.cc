#define BEGIN() void* cast(int a) { if (a == 0)
#define ENTRY(b) return b;
#define END() return nullptr; }
class A {
  BEGIN()
  ENTRY(c)
  END()
  int d;
};
