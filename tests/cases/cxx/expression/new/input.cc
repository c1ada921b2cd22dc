enum E {
  A = new Foo(1),
  B = ::new Foo(1),
  C = new int(4),
  D = new Foo,
};
