extern int f(void) API_AVAILABLE(macos(10.15), ios(13));
int g(void) CF_RETURNS_RETAINED;
typedef int h_t NS_AVAILABLE(10_5, 2_0);
void i(int a NS_NOESCAPE);
