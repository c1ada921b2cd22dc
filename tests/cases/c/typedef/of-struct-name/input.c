typedef struct S S_t;
