NS_ENUM(unsigned long *, X) y;
