namespace { int a; }
struct { int b; } s;
enum { E };
union { int c; };
struct;
struct { int d; };
