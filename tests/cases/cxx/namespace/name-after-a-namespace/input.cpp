namespace n {
int a;
} b;
int c;
