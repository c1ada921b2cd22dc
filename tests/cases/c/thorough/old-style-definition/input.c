int f(a, b)
  int a;
  char *b;
{
  return a;
}
int g;
