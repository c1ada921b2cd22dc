class Base {};
#if USE_BASE
class Shape : public Base {
#else
class Shape {
#endif
 public:
  void Draw();
#ifdef DEBUG
  void Dump();
#else
  void Trace();
#endif
};
int last;
