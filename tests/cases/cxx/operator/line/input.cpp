bool operator
==(A, A);
operator
int();
void *operator
new(size_t);
