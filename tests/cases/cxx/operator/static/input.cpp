static bool operator<(A, A) { return true; }
inline bool operator>(A, A);
extern A operator+(A, A);
