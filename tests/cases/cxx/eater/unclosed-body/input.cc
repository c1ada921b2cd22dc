int before;
void f() {
int inside;
