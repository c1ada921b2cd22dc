class A {
 public slots:
  void go();
 signals:
  void gone();
  private int x;
};
