void (*cb)(int, char);
struct S { void (^block)(int n); };
int (paren)(void);
