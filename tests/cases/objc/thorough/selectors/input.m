@interface A
+ (double)double:(id)value;
- (int)int;
@end
