namespace N {
int a;
@end
int b;
}
int c;
