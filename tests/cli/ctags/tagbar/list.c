#define LIMIT 10
#define MAX(a, b) ((a) > (b) ? (a) : (b))
struct node {
  int value;
  struct node *next;
};
typedef union { int i; float f; } either;
enum state { on, off };
static int count;
extern int shared;
static int add(struct node *list, int value);
int
find(const struct node *list,
     int value) /* or -1 */
{
  return 0;
}
char *quote = ";"	;
