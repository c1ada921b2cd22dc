@interface A : B
- (void)a;
@end
@interface C : D <P,
  Q>
- (void)c;
@end
