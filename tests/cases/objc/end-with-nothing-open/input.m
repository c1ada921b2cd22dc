@end
int x;
