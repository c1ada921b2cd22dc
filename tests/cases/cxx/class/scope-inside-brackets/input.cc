template <> struct ns::hash<std::string> {
  int x;
};
