bool decode(std::string_view from, std::string* lib_nonnull to);
bool erase(std::string* lib_nonnull from, int a);
std::string text(4, 'a');
int last;
