class A {
  Q_OBJECT
  DECLARE(x) int y;
  DISABLE_COPY(A);
};
