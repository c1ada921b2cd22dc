@interface A
@property (nonatomic, nullable, class, getter = isOn) NSArray<NSString *> *on;
@property (copy, readonly) void (^block)(int);
@end
