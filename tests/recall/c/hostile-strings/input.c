const char *first = "\x41\"}{\\";
const char second = '\'';
const char third = '"';
const char *fourth = "\q /* " "\
}";
int last(void) { return '}'; }
