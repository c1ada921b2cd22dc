'abc
int y;
