int first;
@ ) ] int second(void);
= 3 ;
int third(void) { return 0; }
}
struct fourth { int x; };
int last;
