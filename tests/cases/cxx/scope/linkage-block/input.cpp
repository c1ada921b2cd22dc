extern "C" {
void f();
int a;
}
int b;
