@interface View : NSObject
@property (nonatomic, nullable, copy) NSString *title;
@property (readonly, nonnull) NSArray *items;
- (nullable NSString *)nameFor:(nonnull id)item;
- (NSString * _Nullable)textFor:(id _Nonnull)item count:(int)count;
+ (null_unspecified instancetype)make;
@end
int last(void);
