#ifdef LIB_DOXYGEN
#define Lib
#define BEGIN(x)
#define END
#else
#define BEGIN(x) namespace x {
#define END }
#endif
#ifdef LIB_HAS_NO_STRONG_ENUMS
#define ENUM(x) struct x { enum _t
#else
#define ENUM(x) enum class x
#endif
BEGIN(Lib)
ENUM(Color) { Red };
END
