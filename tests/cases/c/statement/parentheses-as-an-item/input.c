(1 + 2);
(a, b * c);
();
int x;
