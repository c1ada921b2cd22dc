// SPDX-License-Identifier: MIT
// Looks up the types of a file.
#include "formats/swift_scope_kinds.h"

#include "portable/swift_scopes.h"

namespace vexltags {

void AddSwiftScopeKinds(std::span<TagRecord> tags) {
  SwiftScopes scopes;
  for (const TagRecord& tag : tags) scopes.Add("", tag.name, tag.kind, tag.scope, tag.line);
  for (TagRecord& tag : tags) {
    if (!tag.scope.empty() && tag.scopeKind.empty()) {
      tag.scopeKind = scopes.KeyOf("", tag.scope, tag.line);
    }
  }
}

}  // namespace vexltags
