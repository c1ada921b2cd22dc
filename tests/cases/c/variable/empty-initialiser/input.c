int a = , b = ;
int c;
