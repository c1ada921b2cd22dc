#if 0
class Never {
#elif defined(_WIN32)
class Foreign {
#else
class Native {
#endif
  int a;
};
int b;
