#define API(major, minor)
#define DEPRECATED(text)
Number API(2, 0) DEPRECATED("no")
  multiply(const Number& a);
struct A {
  void DEPRECATED("no") PEM_decode(int a);
  int API(int a);
};
