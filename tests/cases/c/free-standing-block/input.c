{ int a; }
int b;
