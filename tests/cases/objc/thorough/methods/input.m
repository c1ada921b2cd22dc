@interface A : NSObject <P, Q>
- (nullable id)find:(nonnull NSString *)name in:(inout id *)place;
+ (oneway void)run API_NAME(macos(10.15));
@optional
- (void)stop;
@end
