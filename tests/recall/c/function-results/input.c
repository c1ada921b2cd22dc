struct ui;
LIB_OLD int (*ui_get_opener(const struct ui *ui))(struct ui *, int);
void (*ui_set_handler(void (*handler)(int), int priority))(int);
static int (*ui_table(void))[4] { return 0; }
void (**ui_handlers(void))(int);
int (*ui_hook)(struct ui *);
void (**ui_hooks)(int);
int ui_count;
