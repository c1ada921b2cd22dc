struct Call {
  T (Class::*fn)(A) const noexcept;
  To (From::* const member)(bool*) const;
  int (* const plain)(int);
  const char (*row)[9];
};
