struct A { int x; } PACKED;
