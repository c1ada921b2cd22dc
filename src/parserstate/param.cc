// SPDX-License-Identifier: MIT
// Assignments to parameters.
#include "parserstate/param.h"

namespace vexltags {

Param& Param::operator=(const Name& other) {
  name = other.text;
  line = other.line;
  return *this;
}

Param& Param::operator=(std::nullptr_t) { return *this = Param(); }

ParamList& ParamList::operator=(std::nullptr_t) {
  params.clear();
  return *this;
}

}  // namespace vexltags
