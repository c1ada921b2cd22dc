int before;
@interface Foo
int inside;
@end
int after;
void f(void);
