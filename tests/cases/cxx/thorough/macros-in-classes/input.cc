class A {
  A(const A&) libDELETE;
  A& operator=(const A&) libDELETE;
  friend class API B;
  friend struct C;
  int a;
};
