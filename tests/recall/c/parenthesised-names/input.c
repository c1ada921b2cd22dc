#define max(a, b) ((a) > (b) ? (a) : (b))
int (max)(int a, int b);
long (lowest)(long a) { return a; }
int (*handler)(int);
int last;
