NS_CLASS_AVAILABLE(10_0, 2_0)
@interface A
@end
__attribute__((objc_root_class))
@interface B
@end
GS_EXPORT_CLASS
@interface C
@end
UNKNOWN(x)
@protocol D
@end
