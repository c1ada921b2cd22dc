typedef __typeof__(x) T;
- (void)run;
int y;
typedef __typeof__(x) U;
@protocol P;
int z;
typedef __typeof__(x) V;
@end
int w;
