int a = x < y, b;
int c = x > y, d;
int e = (x < y), f;
