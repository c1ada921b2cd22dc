operator;
int x;
