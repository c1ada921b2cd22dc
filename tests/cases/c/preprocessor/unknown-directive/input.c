#ident "x"
int a;
#sccs int b;
