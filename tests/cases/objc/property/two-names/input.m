@interface Foo
@property int a, b;
@property int c;
@end
