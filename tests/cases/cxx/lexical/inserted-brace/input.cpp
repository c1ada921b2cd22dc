operator int() : a(1) int x;
}
int y;
