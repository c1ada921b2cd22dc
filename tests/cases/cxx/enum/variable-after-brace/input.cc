enum E { A } e;
enum { B } f;
class C {
  enum K { D } k;
};
