@interface Foo
- (void (^)(int (^)(void)))a:(void (^)(void (^)(id), int))b;
- (void)c:(void (^)(void (^done)(NSError *_Nullable error)))d;
@end
