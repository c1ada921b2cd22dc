int before;
enum E { A, B
int after;
