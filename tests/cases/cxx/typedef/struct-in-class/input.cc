struct Outer {
  typedef struct { int a; } T;
};
namespace N {
typedef struct { int b; } U;
}
