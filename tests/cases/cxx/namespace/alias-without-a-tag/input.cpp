namespace x = a::b;
int y;
