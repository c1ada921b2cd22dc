enum Color {
  kRed,
  kGreen = 7,
};
