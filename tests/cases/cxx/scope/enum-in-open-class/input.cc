class A { }
enum E { B };
