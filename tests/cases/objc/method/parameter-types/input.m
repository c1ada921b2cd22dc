@interface Foo
- (void)a:(void (^)(int, id))block b:(int (*)(void))f;
- (void)c:(int[4])x d:(unsigned)u e:(unsigned long long)v;
- (struct S *)f:(NSError **)error g:(const void *)p;
- (NSDictionary<NSString *, NSArray<id> *> *)h:(id<P>)p i:(NSString *const *)q;
- (void (^)(void))j;
- (instancetype)k:(signed)s;
@end
