const static int a = 1;
const static int f(void) { return 1; }
