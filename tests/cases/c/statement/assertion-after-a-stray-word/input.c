static_assert x (1);
int a;
