namespace n {
typedef enum { A } Kind;
enum { B } value;
struct S {
  typedef enum Level { C } Alias;
  enum { D } first, second;
};
}
typedef enum { E } Global;
enum { F } variable;
