int (A::*a)(int);
typedef void (A::B::*b)(int) const;
int A::*c;
int d;
