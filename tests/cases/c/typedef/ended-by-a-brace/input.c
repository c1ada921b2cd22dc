typedef;
struct S { };
int a;
