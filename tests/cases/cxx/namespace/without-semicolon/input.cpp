namespace n { int a; }
int b;
class A { int c; }
int d;
