@interface Foo
@property enum E e;
@property int x;
@end
