DECLARE_ITEM(item)
int item_compare(const item *a, const item *b);
int item_find(int a);
DECLARE_LIST(a, b)
int (*list_new)(int a);
int list_size(void);
int old(a, b, c)
  int (*a)(int);
  char **b, c[2];
{
  return 0;
}
