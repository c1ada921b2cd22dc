@interface Foo
@property () int a;
@property (readonly,) int b;
@property (nonatomic int c;
@property;
@property int;
@property (readonly) int d;
@end
