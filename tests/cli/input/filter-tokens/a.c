FOO f(void) { return 0; }
