struct A< int ,
  /* c */ char > {
  int a;
};
