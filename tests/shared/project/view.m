@protocol Drawing
- (void)draw;
@end
@interface View : NSObject <Drawing> {
  int width;
}
@property (readonly, getter=isHidden) BOOL hidden;
@property int count;
+ (id)viewWithWidth:(int)w height:(int)h;
- (void)draw;
@end
@implementation View
@synthesize count;
+ (id)viewWithWidth:(int)w height:(int)h { return nil; }
- (void)draw { }
@end
@interface View (Extra)
- (void)more;
@end
@implementation View (Extra)
- (void)more {}
@end
