@interface Foo
@property (weak) IBOutlet NSView *view;
@property IBOutlet NSButton *button API_AVAILABLE(ios(13));
@property (nonatomic, nullable) __kindof NSView * _Nullable other __attribute__((unused));
@end
