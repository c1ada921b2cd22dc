enum color { red, green };
struct point { int x; };
int paint(enum color c);
int mix(enum color a, enum color *b, struct point *p) { return a; }
void visit(int (*each)(enum color c, void *data), void *data);
enum color last(void);
