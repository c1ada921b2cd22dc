#define LOCAL __attribute__((visibility("hidden")))
class LOCAL A {
  int a;
};
class UNKNOWN_API B final : public A {
  int b;
};
struct UNKNOWN_ALIGN(16) C { int c; };
