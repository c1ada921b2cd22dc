- (void)run;
+ (id)make { return nil; }
@property int count;
int x;
