enum { A = [a, b]() {} };
enum { A = [x = 1]{} };
enum { A = [*this]{} };
enum { Z };
