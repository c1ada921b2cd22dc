class EXPORT Widget {
  int width;
};
