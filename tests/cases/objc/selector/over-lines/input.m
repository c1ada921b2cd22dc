@interface Foo
- (void)move:(int)x
          to:(int)y
       speed:(int)s;
- (void)at:(int)x
          :(int)y;
-
(void)
run;
@end
