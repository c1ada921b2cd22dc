DECLARE(foo)
int a;
