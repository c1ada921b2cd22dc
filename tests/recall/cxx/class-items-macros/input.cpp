class Widget : public Base {
  LIB_OBJECT
  LIB_PROPERTY(int size READ size WRITE setSize)
 public:
  LIB_INVOKABLE void run();
  LIB_DISABLE_COPY(Widget)
  int size() const;
 private:
  int size_;
  LIB_DECLARE_PRIVATE(Widget);
};
int last;
