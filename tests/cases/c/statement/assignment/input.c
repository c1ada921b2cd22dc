x = 1;
p->y = f(2);
int z;
