int x;
INIT({1, 2});
int y;
