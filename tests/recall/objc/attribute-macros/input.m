LIB_ASSUME_NONNULL_BEGIN
LIB_EXPORT LIB_AVAILABLE(ios(11.0))
@interface View : NSObject
- (void)draw LIB_DEPRECATED("use paint");
- (id)init LIB_UNAVAILABLE;
@property (nonatomic) int count LIB_AVAILABLE(ios(12.0));
@end
LIB_ASSUME_NONNULL_END
@implementation View
- (void)draw { [self paint]; }
@end
int last(void);
