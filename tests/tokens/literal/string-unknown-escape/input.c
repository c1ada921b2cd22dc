"\e;"
ab;
"\xg" c;
de
