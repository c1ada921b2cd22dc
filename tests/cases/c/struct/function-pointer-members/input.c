struct ops {
  int (*open)(struct file *, int flags);
  void (*close)(struct file *);
};
