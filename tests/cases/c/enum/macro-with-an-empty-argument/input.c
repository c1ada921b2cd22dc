NS_ENUM(, A) { B };
int x;
NS_ENUM(int, ) { C };
int y;
