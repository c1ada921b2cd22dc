// SPDX-License-Identifier: MIT
// Removes caches that are no longer used.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>

namespace vexltags {

/// After so long without use a cache is removed: its tree is gone, or the program or the options
/// with which it was read are others now.
inline constexpr auto kCacheLifetime = std::chrono::days(90);

/// Removes from `folder` the caches that have not been used for `kCacheLifetime`, and what runs
/// that were killed have left of new ones. Leaves all other files alone.
void RemoveOldCaches(const std::filesystem::path& folder);

/// Takes note, about once a day, that the cache at `path` is used.
void NoteUse(const std::filesystem::path& path);

}  // namespace vexltags
