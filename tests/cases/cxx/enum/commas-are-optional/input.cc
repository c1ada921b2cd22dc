enum E { A, B, };
enum F { C D };
enum G { };
