// SPDX-License-Identifier: MIT
// Paths relative to the working directory.
#include "output/relative_path.h"

#include <cstddef>
#include <cstdlib>
#include <memory>

#include "base/text.h"

namespace vexltags {

namespace {

// The path without symbolic links; empty if it does not resolve.
std::string Resolve(const char* path) {
  const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path, nullptr), &std::free);
  return resolved ? resolved.get() : "";
}

// The number of steps up from the directory `tail`, which ends in `/`. A doubled separator counts
// once; after a backslash none counts.
std::size_t CountSteps(const std::string& tail) {
  std::size_t steps = 0;
  for (std::size_t i = 0; i < tail.size() && tail[i] != '\\'; ++i) {
    const bool doubled = i + 1 < tail.size() && tail[i + 1] == '/';
    if (tail[i] == '/' && !doubled) ++steps;
  }
  return steps;
}

}  // namespace

std::string CommonSubpath(const std::string& a, const std::string& b) {
  std::size_t lastSeparator = 0;
  std::size_t i = 0;
  for (; i < a.size() && i < b.size() && a[i] == b[i]; ++i) {
    if (a[i] == '/') lastSeparator = i;
  }
  if (i == a.size() && i == b.size()) return a;
  return lastSeparator > 0 ? a.substr(0, lastSeparator + 1) : std::string();
}

std::string RelativeToWorkingDirectory(const std::string& path, const std::string& home,
                                       const std::string& cwd) {
  std::string result = path;
  if (!home.empty()) ReplaceFirst(result, "~/", home);
  const std::string common = CommonSubpath(result, cwd);
  if (common.empty()) return result;
  const std::size_t steps = CountSteps(cwd.substr(common.size()));
  ReplaceFirst(result, common, "");
  std::string up;
  for (std::size_t i = 0; i < steps; ++i) up += "../";
  return up + result;
}

std::optional<std::string> HomePrefix(bool cannonicalPaths) {
  const char* home = std::getenv("HOME");
  if (home == nullptr) return std::nullopt;
  return cannonicalPaths ? std::string(home) + "/" : "";
}

std::string WorkingDirectory() {
  const char* pwd = std::getenv("PWD");
  std::string directory;
  if (pwd != nullptr) directory = Resolve(pwd);
  if (directory.empty()) directory = Resolve(".");
  return directory.empty() ? directory : directory + "/";
}

}  // namespace vexltags
