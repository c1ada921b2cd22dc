namespace fs = std::filesystem;
int x;
