struct Yes {
  typedef char (&Pair)[2];
  typedef decltype(*array)& Element;
  const Field Class::*member;
  void final(int a);
  int last() final;
};
class Owner<int>::Client {
  Client(decltype(nullptr));
};
