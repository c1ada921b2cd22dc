int p = a < b, q = 2;
int r;
