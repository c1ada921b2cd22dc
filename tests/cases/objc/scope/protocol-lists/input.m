@protocol P <Q>
- (void)a;
@end
@protocol R<S, T>
@end
@interface B <P>
- (void)b;
@end
