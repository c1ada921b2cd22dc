func a() {}
@Foo(x) func b() {}
