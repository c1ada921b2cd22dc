@interface A (C) : B
- (void)a;
@end
