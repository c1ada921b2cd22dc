#define ENUM(name, ...) enum name { __VA_ARGS__ };
ENUM(Color, kRed, kGreen)
