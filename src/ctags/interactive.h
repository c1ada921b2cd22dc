// SPDX-License-Identifier: MIT
// Answers requests for tags from a program that keeps vexltags-ctags running.
#pragma once

#include "ctags/settings.h"

namespace vexltags::ctags {

/// Reads requests from standard input and answers each on standard output, in JSON, one object a
/// line, until the input ends. A request is a line
///
///     {"command":"generate-tags", "filename":"a.c", "size":N}
///
/// and N bytes of contents; without `size` the file itself is read, which the sandbox refuses. The
/// answer is its tags and an object that says "completed". What is wrong with a request is answered
/// by an object that says "error". Returns 0, or `kFailure` if the output cannot be written.
int AnswerRequests(const Settings& settings);

}  // namespace vexltags::ctags
