enum E {
  A DEPRECATED = 1,
  B
};
