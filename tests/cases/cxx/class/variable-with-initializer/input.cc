const struct P { int x, y; } origin = { 1, { 2 } };
int after;
