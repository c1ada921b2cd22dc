struct Outer {
  union { int i; float f; };
  struct { int x; } inner;
};
