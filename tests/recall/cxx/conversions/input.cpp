class Handle {
  explicit operator bool() const;
  operator int*() const;
  bool operator==(const Handle& other) const;
  Handle& operator=(Handle&&) = delete;
};
Handle::operator bool() const { return true; }
bool Handle::operator==(const Handle& other) const { return true; }
int last;
