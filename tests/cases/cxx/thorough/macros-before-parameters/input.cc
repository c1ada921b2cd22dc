A<int> a UNKNOWN (A const& b);
A<int> c UNKNOWN (d) { return d; }
A<int> e UNKNOWN(16);
