enum
Color
{
  kRed
    = 1,
  kBlue
};
