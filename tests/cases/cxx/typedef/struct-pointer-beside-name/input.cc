typedef struct S T, *PT;
int x;
