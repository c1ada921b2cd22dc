void f() { g(R"( } )"); }
int x;
