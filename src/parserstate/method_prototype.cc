// SPDX-License-Identifier: MIT
// Assignments to methods and property attributes.
#include "parserstate/method_prototype.h"

namespace vexltags {

MethodPrototype& MethodPrototype::operator=(const Name& other) {
  name = other.text;
  line = other.line;
  return *this;
}

MethodPrototype& MethodPrototype::operator=(const Param& other) {
  name = other.name;
  line = other.line;
  return *this;
}

MethodPrototypeList& MethodPrototypeList::operator=(std::nullptr_t) {
  methods.clear();
  return *this;
}

PropertyAttributeInfo& PropertyAttributeInfo::operator=(std::nullptr_t) {
  return *this = PropertyAttributeInfo();
}

}  // namespace vexltags
