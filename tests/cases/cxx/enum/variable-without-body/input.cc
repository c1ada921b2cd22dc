enum E x;
class C {
  enum E y;
};
