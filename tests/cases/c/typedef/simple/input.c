typedef unsigned char u8;
typedef int a, b;
typedef int arr[3];
typedef const char *str;
typedef long long ll;
typedef unsigned u;
typedef foo_t bar_t;
typedef struct S *S_ptr;
typedef union U U_t;
