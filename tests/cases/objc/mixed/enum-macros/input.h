typedef NS_ENUM(NSInteger, Style) {
  StyleA,
  StyleB NS_SWIFT_NAME(b) = 1 << 1,
};
@interface Foo
typedef NS_OPTIONS(NSUInteger, Mask) { MaskA = 1 };
@property Mask mask;
@end
