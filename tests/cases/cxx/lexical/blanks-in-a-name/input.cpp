template <> void f< int ,  char >() {}
template <> void g</* c */int>() {}
void A< int,	char >::h() {}
