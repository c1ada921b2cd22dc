::std::string f();
::std::string s;
void ::g() {}
