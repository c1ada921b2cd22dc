@interface Foo
@property int count;
@property (readonly) int size;
@property (nonatomic, copy) NSString *URL;
@property (nonatomic, readonly, strong) NSArray<NSString *> *items;
@property int _x;
@end
