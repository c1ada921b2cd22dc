run(x, y);
run(1);
int z;
