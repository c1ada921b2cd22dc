int x = a < 3 < 4 > 5, y;
int p = a < b < 4 > 5, q;
int z;
