@interface Foo
@property int new;
@property (readonly) int default, ;
@end
