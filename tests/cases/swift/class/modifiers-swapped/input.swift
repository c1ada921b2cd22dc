final public class A {}
func f() {}
