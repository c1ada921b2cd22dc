NS_ASSUME_NONNULL_BEGIN
@interface Foo
- (void)run NS_UNAVAILABLE;
- (id)initWith:(id __nonnull)x NS_DESIGNATED_INITIALIZER NS_SWIFT_NAME(init(with:));
+ (id _Nullable)make API_AVAILABLE(macos(10.15), ios(13));
- (__kindof NSView *)view __attribute__((deprecated("no (more)")));
- (void)each:(void (NS_NOESCAPE ^)(id _Nonnull o))block;
@end
NS_ASSUME_NONNULL_END
