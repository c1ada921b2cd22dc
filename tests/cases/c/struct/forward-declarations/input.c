struct S;
union U;
enum E;
