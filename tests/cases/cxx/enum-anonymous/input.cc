enum { A, B };
