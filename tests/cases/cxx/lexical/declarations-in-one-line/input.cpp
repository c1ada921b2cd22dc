int a; void f(); int g() { } class A { int b; void h(); }; typedef int T; struct S *s;
