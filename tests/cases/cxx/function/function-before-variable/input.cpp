struct A f();
struct B g;
struct C;
struct D { };
