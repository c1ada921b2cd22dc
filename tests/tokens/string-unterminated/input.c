"abc
int y;
