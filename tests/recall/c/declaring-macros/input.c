DECLARE_ITEM(item)
int item_compare(const struct item *a, const struct item *b);
struct item *item_new(int type);
DECLARE_DUP(item)
void item_free(struct item *item);
int item_count(void);
DECLARE_PAIR(left, right)
extern int pair_default;
