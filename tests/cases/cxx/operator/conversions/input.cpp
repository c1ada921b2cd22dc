struct A {
  operator int() const;
  explicit operator bool() const { return true; }
  operator const char *() const;
  virtual operator B<int> &();
  operator unsigned long() = delete;
};
