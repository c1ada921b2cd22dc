typedef struct S {
  struct S *next;
} S_t, *S_p;
typedef struct S Other;
typedef class C { } C_t;
