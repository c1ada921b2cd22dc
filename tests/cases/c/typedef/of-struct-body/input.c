typedef struct { int a; } T;
typedef struct N {
  int b;
} N_t, *N_ptr;
