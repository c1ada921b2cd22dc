int A_b;
int Aa;
int ab;
int _x;
