@interface Foo
#if WIDE
- (void)a:(long)x;
#else
- (void)a:(int)x;
#endif
#if 0
- (void)b;
#endif
- (void)c;
@end
