FOUNDATION_EXPORT NSString *const NameKey NS_AVAILABLE(10_5, 2_0);
extern NSString * const OtherKey;
FOUNDATION_EXPORT void Log(NSString *format, ...) NS_FORMAT_FUNCTION(1, 2);
