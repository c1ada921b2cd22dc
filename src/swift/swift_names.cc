// SPDX-License-Identifier: MIT
// Builds the names in the results of Swift rules.
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
