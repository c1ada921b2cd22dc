int x;
A() : a(1) int x;
}
int y;
