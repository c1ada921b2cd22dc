func a() {}
@Foo <Bar> var x = 1
