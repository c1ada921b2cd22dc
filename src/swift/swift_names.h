// SPDX-License-Identifier: MIT
// How Swift's rules put their names together: labels, dotted types, tuple patterns.
#pragma once

#include "parserstate/name.h"
#include "parserstate/param.h"

namespace vexltags {

/// The parameter as callers see it: the external name where one is written (`external` is not
/// empty), else the local one, with ":" behind it unless it is "_". The type stays empty.
Param ParameterLabel(const Name& external, const Name& local);

/// Makes `path` name its member: "." and the member's text, with the member's line.
void AppendMember(Name& path, const Name& member);

/// The first of `names`; a `Name` without text or line when there is none.
Name FirstName(const VectorOfName& names);

}  // namespace vexltags
