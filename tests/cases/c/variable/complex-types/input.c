_Bool a;
_Complex double b;
double _Complex c;
_Atomic int d;
_Noreturn void e(void);
_Thread_local int f;
