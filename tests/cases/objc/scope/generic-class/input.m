@interface Box<__covariant T : id> : NSObject <P>
- (T)value;
@end
