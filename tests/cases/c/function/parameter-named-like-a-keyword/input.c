void f(char *new, int delete, int template, int operator);
void g(int namespace, int final, int override, int default, int union);
