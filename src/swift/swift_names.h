// SPDX-License-Identifier: MIT
// Names in the results of Swift rules: labels, dotted types, tuple patterns.
#pragma once

#include "parserstate/name.h"
#include "parserstate/param.h"

namespace vexltags {

/// The parameter as callers see it: its external name, or the local one if `external` is empty,
/// followed by ":" unless it is "_". Its type is empty.
Param ParameterLabel(const Name& external, const Name& local);

/// Appends "." and the text of `member` to `path`, and copies its line.
void AppendMember(Name& path, const Name& member);

/// The first of `names`, or an empty `Name`.
Name FirstName(const VectorOfName& names);

}  // namespace vexltags
