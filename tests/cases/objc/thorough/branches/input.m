#if DEV
@interface Keys : NSObject
@end
@implementation Keys
- (void)press { }
@end
#else
@implementation Keys
- (void)ignore { }
@end
#endif
