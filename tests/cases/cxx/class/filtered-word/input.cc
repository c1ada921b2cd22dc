class EXPORT Widget {
  int width;
};
int after;
