@interface Foo
@property (getter = isOn) BOOL on;
@property int x;
@end
