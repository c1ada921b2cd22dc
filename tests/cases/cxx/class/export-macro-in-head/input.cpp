class EXPORT A : public B {
  void f();
};
int x;
