int class;
struct { int x; };
