@interface Foo
@property (nonatomic,
           copy)
    NSString
    *name;
@end
