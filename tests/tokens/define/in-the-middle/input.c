int a; #define B 1
