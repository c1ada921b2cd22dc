// SPDX-License-Identifier: MIT
// What a run knows of each file.
#include "tree/tree_file.h"

#include <sys/stat.h>

namespace vexltags::tree {

bool LearnsFrom(std::string_view path) {
  return !path.ends_with(".py") && !path.ends_with(".pyx") && !path.ends_with(".swift");
}

std::optional<FileStamp> StampOf(const std::string& path) {
  struct stat info;
  if (stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return std::nullopt;
  constexpr std::int64_t kBillion = 1000000000;
  FileStamp stamp;
  stamp.device = info.st_dev;
  stamp.inode = info.st_ino;
  stamp.size = info.st_size;
  stamp.modifiedAt = info.st_mtim.tv_sec * kBillion + info.st_mtim.tv_nsec;
  return stamp;
}

std::string JoinPaths(const std::vector<std::string>& paths) {
  std::string joined;
  for (const std::string& path : paths) {
    joined += path;
    joined += '\0';
  }
  return joined;
}

std::vector<std::string> SplitPaths(std::string_view joined) {
  std::vector<std::string> paths;
  while (!joined.empty()) {
    const std::size_t end = joined.find('\0');
    paths.emplace_back(joined.substr(0, end));
    joined.remove_prefix(end == std::string_view::npos ? joined.size() : end + 1);
  }
  return paths;
}

}  // namespace vexltags::tree
