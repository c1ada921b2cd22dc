for (int i = 0; i < 3; i++) { g(i); }
int y;
