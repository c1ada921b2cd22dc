enum { A = (A)(B)~0 };
enum { A = (A)(B)1 };
enum { Z };
