x = a < b;
int y = a < b;
int z = (c < d) ? 1 : 2, w = 3;
