enum E {
  A,
#define A A
  B
};
int after;
