// SPDX-License-Identifier: MIT
// Puts together the names that Swift's rules pass on.
#include "swift/swift_names.h"

namespace vexltags {

Param ParameterLabel(const Name& external, const Name& local) {
  Param label;
  label = external.text.empty() ? local : external;
  if (label.name != "_") label.name += ":";
  return label;
}

void AppendMember(Name& path, const Name& member) {
  path += ".";
  path += member;
}

Name FirstName(const VectorOfName& names) {
  return names.names.empty() ? Name() : names.names.front();
}

}  // namespace vexltags
