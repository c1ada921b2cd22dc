int a;
int b API_AVAILABLE("(");
int c;
