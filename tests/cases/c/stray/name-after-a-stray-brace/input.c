} a;
int b;
