@interface Cell : NSObject {
  int first;
  struct { int row; int column; } place;
  union { int i; float f; } value;
  struct _flags { unsigned dirty : 1; } flags;
  unsigned low : 3;
}
- (void)draw;
@end
int last(void);
