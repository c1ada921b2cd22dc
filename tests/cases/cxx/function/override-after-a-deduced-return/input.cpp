int x;
auto f() override;
int y;
