const char *a = R"(x)";
const char *b = R"(y; ")";
int c;
int d;
