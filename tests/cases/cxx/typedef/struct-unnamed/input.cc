typedef struct {
  int a;
} T;
typedef union { int b; } U, *PU;
