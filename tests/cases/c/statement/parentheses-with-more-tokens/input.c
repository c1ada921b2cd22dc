int x;
LOG("a" PREFIX "b");
int y;
LOG("a" "b" "c");
int z;
