// SPDX-License-Identifier: MIT
// Bounds the depth of the parsers' recursion by the stack that is there.
#pragma once

#include <functional>

namespace vexltags {

/// The lowest address that rules may use of the stack they run on; null for no bound.
inline const void* stackLimit = nullptr;

/// True when a rule should not go deeper. It then fails as it would on a syntax error.
inline bool StackIsLow() { return __builtin_frame_address(0) < stackLimit; }

/// Calls `work` on a stack as large as there are addresses for, 64 GiB at most and no more than a
/// quarter of a limit on the address space, and returns its result. Only what is used of it becomes
/// memory. Where there is no such stack `work` runs on the present one, bounded by its size.
int RunOnLargeStack(const std::function<int()>& work);

}  // namespace vexltags
