int a;
int b __attribute__((section("(")));
int c;
