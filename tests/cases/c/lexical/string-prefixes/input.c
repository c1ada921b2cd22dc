const wchar_t *a = L"a", *b = L"b;";
const char *c = u8"c" "d";
int e;
