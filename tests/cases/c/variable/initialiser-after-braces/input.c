int a = {1} + 2;
int b;
