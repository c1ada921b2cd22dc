int operator"x" _y(char);
int operator "" _z(char);
