f() const;
int x;
