typedef void (*fp)(int);
typedef void (^blk)(int, char);
typedef int fn(const char *);
typedef struct S *(*maker)(void);
typedef int (paren)(void);
