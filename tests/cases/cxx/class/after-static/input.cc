static struct Point { int x; } origin;
extern struct Q { int y; } q;
