typedef void (^Block)(id x, NSError *error);
typedef NSString *Name NS_TYPED_EXTENSIBLE_ENUM;
typedef NSString *Other;
