@interface Foo
+ (id)new;
- (void)delete:(id)x;
- (void)default;
- (void)union:(id)x final:(id)y;
- (void)operator;
- (id)template:(id)t namespace:(id)n override:(id)o;
@end
