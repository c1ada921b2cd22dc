// SPDX-License-Identifier: MIT
// Assigns and appends to names.
#include "parserstate/name.h"

#include "engine/std_string.h"
#include "parserstate/param.h"

namespace vexltags {

Name& Name::operator=(pANTLR3_COMMON_TOKEN token) {
  if (token == nullptr) text.clear();
  TokenText(token, text);
  line = TokenLine(token);
  return *this;
}

Name& Name::operator=(const Param& param) {
  text = param.name;
  line = param.line;
  return *this;
}

Name& Name::operator+=(pANTLR3_COMMON_TOKEN token) {
  if (token == nullptr) return *this;
  if (const auto piece = TokenView(token)) text += *piece;
  line = TokenLine(token);
  return *this;
}

Name& Name::operator+=(const Name& name) {
  text += name.text;
  line = name.line;
  return *this;
}

Name& Name::operator+=(const std::string& piece) {
  text += piece;
  return *this;
}

Name& Name::operator+=(const char* piece) {
  text += piece;
  return *this;
}

VectorOfName& VectorOfName::operator=(std::nullptr_t) {
  names.clear();
  return *this;
}

}  // namespace vexltags
