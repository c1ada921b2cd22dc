// SPDX-License-Identifier: MIT
// Asks whether files are there, mostly where none is.
#include "tree/file_probe.h"

#include <sys/stat.h>

#include <cstddef>

namespace vexltags::tree {
namespace {

std::string_view FolderOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return path.substr(0, slash == std::string_view::npos ? 0 : slash + 1);
}

}  // namespace

bool FileProbe::IsFile(const std::string& path) {
  if (!HasFolder(FolderOf(path))) return false;
  struct stat info;
  return stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

bool FileProbe::HasFolder(std::string_view folder) {
  if (folder.empty() || folder == "/") return true;
  const auto [known, isNew] = folders.try_emplace(std::string(folder), false);
  if (!isNew) return known->second;
  bool& isThere = known->second;
  struct stat info;
  isThere = HasFolder(FolderOf(folder.substr(0, folder.size() - 1))) &&
            stat(known->first.c_str(), &info) == 0;
  return isThere;
}

}  // namespace vexltags::tree
