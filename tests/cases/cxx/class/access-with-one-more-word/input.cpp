class A {
public slots:
  void f();
signals:
  void g();
};
