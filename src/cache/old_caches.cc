// SPDX-License-Identifier: MIT
// The time of the last use is the time stamp of the file: reading it does not change that by
// itself.
#include "cache/old_caches.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <vector>

namespace vexltags {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kNameLength = 16;
constexpr std::string_view kSuffix = ".db";
constexpr auto kDay = std::chrono::days(1);

/// How long a file of this name is kept; nothing if it is none of ours.
std::chrono::days LifetimeOf(std::string_view name) {
  const bool isOurs = name.size() > kNameLength &&
                      name.find_first_not_of("0123456789abcdef") == kNameLength &&
                      name.substr(kNameLength).starts_with(kSuffix);
  if (!isOurs) return std::chrono::days::max();
  const std::string_view rest = name.substr(kNameLength + kSuffix.size());
  if (rest.empty()) return kCacheLifetime;
  return rest.starts_with(".new-") ? kDay : std::chrono::days::max();
}

/// Returns the time since the file was changed; nothing since if that is not known.
fs::file_time_type::duration AgeOf(const fs::path& path) {
  std::error_code error;
  const fs::file_time_type time = fs::last_write_time(path, error);
  return error ? fs::file_time_type::duration() : fs::file_time_type::clock::now() - time;
}

}  // namespace

void RemoveOldCaches(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> old;
  fs::directory_iterator it(folder, error);
  while (!error && it != fs::directory_iterator()) {
    const std::chrono::days lifetime = LifetimeOf(it->path().filename().string());
    std::error_code ignored;
    if (lifetime != std::chrono::days::max() && it->is_regular_file(ignored) &&
        AgeOf(it->path()) > lifetime) {
      old.push_back(it->path());
    }
    it.increment(error);
  }
  for (const fs::path& path : old) {
    // With the files that the database keeps beside it.
    for (const char* suffix : {"", "-wal", "-shm", "-journal"}) {
      fs::remove(path.string() + suffix, error);
    }
  }
}

void NoteUse(const fs::path& path) {
  std::error_code error;
  if (AgeOf(path) > kDay) fs::last_write_time(path, fs::file_time_type::clock::now(), error);
}

}  // namespace vexltags
