__attribute__((a))__attribute__((b))c
