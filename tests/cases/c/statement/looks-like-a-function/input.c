while (x) { y; }
