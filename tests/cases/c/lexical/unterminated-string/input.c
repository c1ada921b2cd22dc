char *a = "abc;
 int b;
