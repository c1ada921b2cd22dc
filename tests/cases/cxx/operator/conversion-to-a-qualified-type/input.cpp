struct A {
  operator std::string() const;
  operator std::vector<ns::B>();
};
