struct A { int x; } __attribute__((packed));
struct B { int y; } __attribute__((packed)) b;
