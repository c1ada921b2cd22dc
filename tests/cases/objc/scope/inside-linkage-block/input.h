extern "C" {
@interface A
- (void)a;
@end
void f(void);
}
@interface B
- (void)b;
@end
