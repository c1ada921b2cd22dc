// SPDX-License-Identifier: MIT
// Where the project is that contains the working directory.
#include "tree/project_top.h"

#include <cstdlib>
#include <filesystem>

#include "sources/git_files.h"

namespace vexltags::tree {

std::string ProjectTop() {
  namespace fs = std::filesystem;
  const std::string top = GitTop(".");
  std::error_code error;
  if (top.empty() || fs::equivalent(top, ".", error) || error) return {};
  const char* const home = std::getenv("HOME");
  if (home != nullptr && fs::equivalent(top, home, error)) return {};
  return IsIgnoredByGit(".") ? std::string() : top;
}

}  // namespace vexltags::tree
