namespace N {
@interface A
@end
int x;
}
int y;
