@interface Foo
@property (copy) void (^done)(int, id);
@property int (*compare)(const void *, const void *);
@property (weak) id<P, Q> delegate;
@property unsigned long long size;
@property unsigned bits;
@property struct S *s;
@property (assign) const char *name;
@end
