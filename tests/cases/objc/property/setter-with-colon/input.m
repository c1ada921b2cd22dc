@interface Foo
@property (nonatomic, setter=turnOn:) BOOL on;
@property (setter=turnOff:, nonatomic) BOOL off;
@property int x;
@end
