struct S { int a; } f(void) { }
int b;
