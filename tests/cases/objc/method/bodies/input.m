@implementation Foo
- (void)a { if (x) { NSLog(@"}"); } @autoreleasepool { } }
- (id)b { return @{ @"k" : @[ @1 ] }; }
- (SEL)c { return @selector(a:b:); }
- (void)d:(void (^)(int))block { block(^{ return '}'; }); }
+ (char *)e { return @encode(int); }
@end
int after;
