static
  unsigned
long
f(int a,
  int b)
{
}
