int f(void) {
}}
int g(void) { }
