static int a UNUSED;
int b SECTION = 1;
int c;
