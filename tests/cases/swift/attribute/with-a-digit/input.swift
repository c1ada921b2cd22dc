func a() {}
@State2 var x = 1
