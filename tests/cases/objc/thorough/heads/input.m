@interface API_CLASS Box<T> : NSObject
- (T)get;
@end
@implementation Box
EXPORT_MODULE()
- (void)first {
}
@end
