typedef struct {
  struct { int a; } in;
  union { int b; };
} T;
int x;
