@interface A : B {
  int a;
 @private
  struct { int x; } s;
}
- (void)run;
@end
