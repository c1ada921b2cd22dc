int before;
(x = 1, f(2), y >>= 3);
()
int after;
