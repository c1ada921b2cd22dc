enum E a;
enum E b, c;
struct S {
  enum E d;
};
