@protocol Peer
- (oneway void)send:(bycopy id)message;
- (BOOL)read:(inout int *)value into:(out id *)object;
- (void)ignore:(__unused id)sender;
- (__kindof NSObject *)any;
@end
int last(void);
