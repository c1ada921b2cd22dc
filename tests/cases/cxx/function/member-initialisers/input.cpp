struct A {
  int a = 1, b = f(1, 2);
  std::string c = "x,y";
  int d{2};
  std::vector<int> e = {1, 2};
};
