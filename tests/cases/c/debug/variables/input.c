unsigned long long int a, *b;
const char * const * c;
struct foo d[3];
struct S {
  const struct foo * const * e;
  unsigned f : 3;
};
