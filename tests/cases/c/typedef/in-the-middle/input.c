int typedef a;
int b;
int c;
