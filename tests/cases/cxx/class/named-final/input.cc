class final { int a; };
int after;
