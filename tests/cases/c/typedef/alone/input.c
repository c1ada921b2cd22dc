typedef;
int a;
int b;
