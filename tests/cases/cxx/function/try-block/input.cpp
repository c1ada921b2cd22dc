A::A() try : x(1) { f(); } catch (...) { }
int y;
