namespace n {
class A { } a;
class B {
  struct { int x; } b, *c;
};
}
