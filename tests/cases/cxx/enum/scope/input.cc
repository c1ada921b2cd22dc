namespace N {
enum E { A };
class C {
  enum Kind { kOne };
  Kind kind;
};
}
