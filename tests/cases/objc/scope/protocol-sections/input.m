@protocol P
@required
- (void)a;
@optional
+ (void)b;
@property int c;
@end
