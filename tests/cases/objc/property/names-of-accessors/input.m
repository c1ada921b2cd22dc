@interface Foo
@property (getter=isOn) BOOL on;
@property (setter=store) int x;
@property (readonly, getter=isOff) BOOL off;
@property (getter=a, getter=b, setter=c, setter=d) int e;
@end
