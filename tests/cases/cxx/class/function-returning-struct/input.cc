struct S *next(struct S s) { return s.next; }
struct S first = {1};
class T t;
