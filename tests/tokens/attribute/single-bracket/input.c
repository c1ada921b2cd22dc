[[a] x;
b[c[d]]
