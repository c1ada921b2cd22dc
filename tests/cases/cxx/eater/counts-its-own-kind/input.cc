static_assert(( { ), "x");
int a[ ( ];
void f() { ( [ }
int b;
