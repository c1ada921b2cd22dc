// SPDX-License-Identifier: MIT
// Limits the depth of the parsers' recursion by the size of the stack.
#pragma once

#include <functional>

namespace vexltags {

/// The lowest stack address that rules may use; null for no limit.
inline const void* stackLimit = nullptr;

/// Returns whether the stack limit is reached. The calling rule then fails like on a syntax error.
inline bool StackIsLow() { return __builtin_frame_address(0) < stackLimit; }

/// Calls `work` on a stack as large as the address space permits, but at most 64 GiB and a quarter
/// of any limit on the address space, and returns its result. The stack takes up memory only as it
/// is used. If no such stack can be allocated, `work` runs on the current stack, within its limit.
int RunOnLargeStack(const std::function<int()>& work);

}  // namespace vexltags
