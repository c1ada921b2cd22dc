// SPDX-License-Identifier: MIT
// The version of the program, defined only here.
#pragma once

namespace vexltags {

/// Printed by `--version`, in the usage text and in the header of every tags file.
inline constexpr char kVersion[] = "0.78a3";

}  // namespace vexltags
