// SPDX-License-Identifier: MIT
// Rewrites a stored path relative to the working directory.
#pragma once

#include <optional>
#include <string>

namespace vexltags {

/// The longest leading directory that both paths share, with its trailing `/`, or `a` when they are
/// equal. Empty when they share no more than the root.
std::string CommonSubpath(const std::string& a, const std::string& b);

/// Rewrites `path`, in the form in which tag builders store it, relative to `cwd`.
///
/// `home` is the home directory with a `/` at its end; it replaces the first `~/` anywhere in the
/// path, unless it is empty. `cwd` ends in `/`. A path that shares only the root with `cwd` stays
/// absolute. The path has backslash escapes and `cwd` has none, so the common part ends above a
/// directory with a blank in its name. A backslash in the name of a directory of `cwd` stops the
/// count of the steps up.
std::string RelativeToWorkingDirectory(const std::string& path, const std::string& home,
                                       const std::string& cwd);

/// The home directory from `HOME` with a `/` at its end, or an empty string if `~/` is not to be
/// expanded (`cannonicalPaths` false). Nothing if `HOME` is not set, expanded or not.
std::optional<std::string> HomePrefix(bool cannonicalPaths);

/// The directory that `PWD` names, without symbolic links and with a `/` at its end, even if the
/// process runs in another one. Where `PWD` is unset or does not resolve, the directory of the
/// process; empty when that does not resolve either.
std::string WorkingDirectory();

}  // namespace vexltags
