static_assert(sizeof(int) == 4, "int (");
int a;
