template <auto V, // value
          /* c */   int N> struct A {
  int a;
};
