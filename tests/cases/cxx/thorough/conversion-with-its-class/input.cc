struct A {
  operator std::less<int>() const;
  operator bool() const;
};
A::operator bool() const { return true; }
