@interface Foo // : NSObject
- /* a */ (void) /* b */ run // c
  : /* d */ (int) x /* e */ ;
@end
