namespace N {
extern "C" {
int a;
}
int b;
}
int c;
