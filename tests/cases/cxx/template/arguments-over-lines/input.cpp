template <> void f<int,
long>() {}
void A<int,
  long>::g() {}
