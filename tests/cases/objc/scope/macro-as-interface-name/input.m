@class GENERIC(List, T);
GENERIC_EXPORT
@interface GENERIC(List, T) : NSObject
- (void)a;
@end
