typedef enum { A, B } E;
typedef enum F { C } F_t;
typedef enum G G_t;
