using A = enum { B };
using C = struct { int x; };
int y;
