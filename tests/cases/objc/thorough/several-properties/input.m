@interface A
@property (copy) NSString *r, *s;
@property (readonly) NSDictionary<NSString *, id> *t, *v;
- (void)x:(id)a public:(id)b class:(id)c;
@end
