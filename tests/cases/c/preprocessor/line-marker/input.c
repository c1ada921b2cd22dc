int a;
# 3 "b.c"
int b;
