__attribute__((a(b))) int f();
__attribute__ 	((c)) g
