namespace N {
enum E { A } e;
typedef enum { B } T;
}
