// SPDX-License-Identifier: MIT
// The header of a tags file.
#pragma once

#include <cstdint>
#include <string>

namespace vexltags {

/// The four header lines, each with its newline. `sort` is the sort option's number, 0 to 2.
std::string TagsHeader(std::int32_t sort);

}  // namespace vexltags
