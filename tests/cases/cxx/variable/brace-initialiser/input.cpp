int a{1};
std::vector<int> b{1, 2};
int c = {1};
