extern API int
  one(int a),
  *two(const A *, const B *) ATTRIBUTE((x)),
  three(void);
static char *four(), five[20];
int six, seven(int);
struct S *eight(), *nine();
int (*ten)(int), eleven(int);
typedef int (*Twelve)(int), *Thirteen, Fourteen(void);
A fifteen(1), sixteen(2);
int last;
