class A {
  friend void f();
  friend void g() {}
  friend bool operator==(A, A);
  friend bool operator<(A, A) { return true; }
  template <class T> friend void h(T);
  template <class T> friend void i(T) {}
};
