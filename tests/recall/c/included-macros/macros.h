#define LIB_OPEN
#define LIB_CLOSE
#define LIB_API __declspec(dllexport)
#define LIB_STRUCT(name) struct name {
#define LIB_STRUCT_END };
