class A : public B {
  OBJECT
  PROPERTY(int c READ c)

 public:
  enum D { e };
  ENUM(D)
  enum class F : int { g };
  ENUM(F)
  explicit A(int);
  PRIVATE(A)
  virtual void h();
};
NAMED(j)
enum { k };
int l(m, n)
enum O m;
int n;
{
}
