extern int lock(mutex_t *m) __nonnull ((1));
extern char *copy(char *to, const char *from) __nonnull ((1, 2)) PURE;
