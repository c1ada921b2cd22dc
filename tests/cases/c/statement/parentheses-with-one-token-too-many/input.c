MODULE_INFO("a" "b");
LOG("a" x);
int y;
