typedef enum { A } T;
typedef enum E { B } U;
typedef enum E V;
