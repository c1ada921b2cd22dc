enum E { A } a;
struct S {
  enum { B } b;
};
