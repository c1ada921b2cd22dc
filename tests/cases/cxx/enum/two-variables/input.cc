enum { A, B } x, y;
int after;
