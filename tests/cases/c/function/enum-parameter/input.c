void f(enum e a);
void g(int a, const enum e b);
void h(struct s *a, union u b);
