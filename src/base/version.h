// SPDX-License-Identifier: MIT
// The version of the program: the only place where it is written down.
#pragma once

namespace vexltags {

/// Shown by `--version`, by the usage text and in the header of every tags file.
inline constexpr char kVersion[] = "0.78a3";

}  // namespace vexltags
