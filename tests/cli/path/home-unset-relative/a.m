@interface I
@property int p;
typedef NS_ENUM(NSInteger, Style) { S1, S2 };
@end
@implementation I
- (void)m {}
@end
