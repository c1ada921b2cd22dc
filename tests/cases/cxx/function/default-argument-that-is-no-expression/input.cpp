void f(int a = new int[3]);
int x;
