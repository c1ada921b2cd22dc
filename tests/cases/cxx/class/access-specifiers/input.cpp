class A {
public:
  int a;
protected:
  void f();
private: int b;
};
