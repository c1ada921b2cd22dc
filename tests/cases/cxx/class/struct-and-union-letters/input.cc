class A { int a; };
struct B { int b; };
union C { int c; };
