#define INNER(n) int n;
#define OUTER(n) INNER(n##1) INNER(n##2)
#define SELF SELF static
OUTER(x)
SELF int y;
