struct;
struct { int a; } x;
