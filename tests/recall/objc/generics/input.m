@interface Store<Item> : NSObject <NSCopying>
@property (copy) NSDictionary<NSString *, NSArray<Item> *> *table;
- (void)each:(void (^)(Item item, BOOL *stop))block;
- (id<NSCopying>)keyFor:(Item)item;
@end
int last(void);
