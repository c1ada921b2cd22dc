int x;
int f() -> int;
int y;
