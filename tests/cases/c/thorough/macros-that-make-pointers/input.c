#define POINTER(name, args) (*(name)) args
#define CALLBACK(result, name) result(CALL *name)
#define CALL
struct S {
  int POINTER(a, (int));
};
typedef CALLBACK(int, B)(int);
