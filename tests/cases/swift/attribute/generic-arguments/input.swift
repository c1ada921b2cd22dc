@Foo<Bar> var x = 1
@Foo<A<B>, C> var y = 1
