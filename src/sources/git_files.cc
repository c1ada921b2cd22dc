// SPDX-License-Identifier: MIT
// Runs `git ls-files` and parses its output.
#include "sources/git_files.h"

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "sources/child_process.h"

namespace vexltags {
namespace {

constexpr std::string_view kSubmoduleMode = "160000";

/// The variables by which a hook, for one, directs git to a repository other than the directory's.
constexpr std::string_view kRepositoryVariables[] = {
    "GIT_DIR=",       "GIT_WORK_TREE=",      "GIT_INDEX_FILE=",
    "GIT_PREFIX=",    "GIT_COMMON_DIR=",     "GIT_OBJECT_DIRECTORY=",
    "GIT_NAMESPACE=", "GIT_OPTIONAL_LOCKS=", "GIT_GLOB_PATHSPECS=",
};

std::vector<std::string> Environment() {
  std::vector<std::string> result;
  for (char** variable = environ; variable != nullptr && *variable != nullptr; ++variable) {
    const std::string_view text = *variable;
    const bool isDropped =
        std::any_of(std::begin(kRepositoryVariables), std::end(kRepositoryVariables),
                    [text](std::string_view name) { return text.starts_with(name); });
    if (!isDropped) result.emplace_back(text);
  }
  result.emplace_back("GIT_OPTIONAL_LOCKS=0");
  return result;
}

ChildResult RunGit(const std::string& directory, const std::vector<std::string>& arguments) {
  std::vector<std::string> command = {"git", "-C", directory};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return RunChild(command, Environment());
}

/// Returns `text` with a backslash before each character that is special in a pattern.
std::string EscapedForPattern(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '*' || c == '?' || c == '[' || c == '\\') result += '\\';
    result += c;
  }
  return result;
}

/// Appends options with all patterns, if one is negated: git takes those before its own ones.
void AddPatterns(const std::string& directory, const IgnorePatterns& patterns,
                 std::vector<std::string>& arguments) {
  const std::vector<IgnorePattern>& all = patterns.All();
  if (std::none_of(all.begin(), all.end(), [](const auto& one) { return one.IsNegated(); })) return;
  std::string prefix = RunGit(directory, {"rev-parse", "--show-prefix"}).output;
  if (prefix.ends_with('\n')) prefix.pop_back();
  for (const IgnorePattern& pattern : all) {
    std::string text = pattern.IsNegated() ? "!" : "";
    std::string_view rest = pattern.Text();
    if (pattern.IsAnchored()) {
      if (rest.starts_with('/')) rest.remove_prefix(1);
      text += '/' + EscapedForPattern(prefix);
    }
    arguments.emplace_back("-x");
    arguments.push_back(text + std::string(rest));
  }
}

/// Adds an item of the output: `MODE OBJECT STAGE TAB PATH` for a tracked file, or the path alone.
void AddItem(std::string_view item, GitListing& listing) {
  constexpr std::size_t kModeLength = 6;
  const std::size_t tab = item.find('\t');
  const std::string_view head = item.substr(0, tab == item.npos ? 0 : tab);
  const bool isTracked = head.size() > kModeLength && head[kModeLength] == ' ' &&
                         head.find_first_not_of("0123456789abcdef ") == head.npos;
  if (isTracked) {
    const bool isSubmodule = head.starts_with(kSubmoduleMode);
    (isSubmodule ? listing.repositories : listing.files).emplace_back(item.substr(tab + 1));
  } else if (item.ends_with('/')) {
    listing.repositories.emplace_back(item.substr(0, item.size() - 1));
  } else if (!item.empty()) {
    listing.files.emplace_back(item);
  }
}

}  // namespace

std::string GitTop(const std::string& directory) {
  std::error_code error;
  std::filesystem::path path = std::filesystem::canonical(directory, error);
  while (!error) {
    std::error_code missing;
    if (std::filesystem::exists(path / ".git", missing)) return path;
    if (!path.has_relative_path()) return {};
    path = path.parent_path();
  }
  return {};
}

bool IsIgnoredByGit(const std::string& directory) {
  return RunGit(directory, {"check-ignore", "-q", "."}).status == 0;
}

GitListing ListGitFiles(const std::string& directory, const IgnorePatterns& patterns) {
  GitListing listing;
  std::vector<std::string> arguments = {"ls-files", "-z", "-s", "-c", "-o", "--exclude-standard"};
  AddPatterns(directory, patterns, arguments);
  const ChildResult result = RunGit(directory, arguments);
  if (!result.started) return listing;
  listing.problem = result.errors;
  while (listing.problem.ends_with('\n')) listing.problem.pop_back();
  if (result.status != 0) return listing;
  std::string_view rest = result.output;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\0'), rest.size());
    AddItem(rest.substr(0, end), listing);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  const bool isEmpty = listing.files.empty() && listing.repositories.empty();
  listing.isListed = !isEmpty || !IsIgnoredByGit(directory);
  return listing;
}

}  // namespace vexltags
