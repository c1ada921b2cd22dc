// SPDX-License-Identifier: MIT
// Adds the kinds of Swift scopes, which tag lines of `vexltags` do not have.
#pragma once

#include <span>

#include "formats/tag_record.h"

namespace vexltags {

/// Sets `scopeKind` where a tag has a scope and no kind of it: the kind of the type of that name,
/// or "scope" if there is no such tag. `tags` are all tags of one Swift file, in any order.
void AddSwiftScopeKinds(std::span<TagRecord> tags);

}  // namespace vexltags
