void f() { enum E { A }; }
