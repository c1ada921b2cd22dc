class Base {};
class First : public ::Base {
  ::Base* parent;
  ::Base Make(::Base& from, const ::Base* other);
};
::Base* Find(int id);
static ::Base global;
using Alias = ::Base;
int last;
