[[nodiscard]] int f();
[[a, b]] [[ns::a(1)]] [[x[y]]] z
