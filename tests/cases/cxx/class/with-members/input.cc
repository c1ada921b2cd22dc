class Widget {
 public:
  Widget();
  ~Widget();
  void draw() const;
 private:
  int width;
};
