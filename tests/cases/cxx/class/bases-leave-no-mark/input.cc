class D final : public virtual B<int>, C, protected ns::E<(1 > 2)> {
  int d;
};
