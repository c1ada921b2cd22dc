__declspec(dllexport) int f(void);
extern "C" __declspec(dllimport) int g(void);
_Alignas(16) int a;
