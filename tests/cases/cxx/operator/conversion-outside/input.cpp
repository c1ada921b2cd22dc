A::operator bool() const { return true; }
int x;
