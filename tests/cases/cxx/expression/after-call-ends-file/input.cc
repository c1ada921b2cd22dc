int before;
FOO(a), b;
int after;
