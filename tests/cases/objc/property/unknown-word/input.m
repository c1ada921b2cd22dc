@interface Foo
@property int x UNKNOWN;
@property int y;
@end
