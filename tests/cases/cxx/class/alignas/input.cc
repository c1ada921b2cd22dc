struct alignas(8) P {
  int p;
};
int after;
