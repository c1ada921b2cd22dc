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

std::vector<std::string> GitCommand(const std::string& directory,
                                    const std::vector<std::string>& arguments) {
  std::vector<std::string> command = {"git", "-C", directory};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return command;
}

ChildResult RunGit(const std::string& directory, const std::vector<std::string>& arguments) {
  return RunChild(GitCommand(directory, arguments), Environment());
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

/// Calls `take` with each item of `output`.
template <class Take>
void ForEachItem(std::string_view output, Take take) {
  while (!output.empty()) {
    const std::size_t end = std::min(output.find('\0'), output.size());
    if (end > 0) take(output.substr(0, end));
    output.remove_prefix(std::min(end + 1, output.size()));
  }
}

/// Returns what two programs have reported, without a newline at its end. Mostly they agree.
std::string Joined(std::string tracked, const std::string& others) {
  std::string all = others.find(tracked) == others.npos ? std::move(tracked) + others : others;
  while (all.ends_with('\n')) all.pop_back();
  return all;
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

GitListing ListGitFiles(const std::string& directory, const IgnorePatterns& patterns,
                        const std::function<void(std::string_view path)>& take) {
  GitListing listing;
  std::vector<std::string> arguments = {"ls-files", "-z", "-o", "--exclude-standard"};
  AddPatterns(directory, patterns, arguments);
  ChildProcess others(GitCommand(directory, arguments), Environment());
  const ChildResult tracked = RunGit(directory, {"ls-files", "-z", "-s"});
  // Each is `MODE OBJECT STAGE TAB PATH`.
  ForEachItem(tracked.output, [&](std::string_view item) {
    const std::string_view path = item.substr(item.find('\t') + 1);
    if (item.starts_with(kSubmoduleMode)) {
      listing.repositories.emplace_back(path);
    } else {
      take(path);
    }
  });
  const ChildResult rest = others.Finish();
  if (!tracked.started || !rest.started) return listing;
  listing.problem = Joined(tracked.errors, rest.errors);
  if (tracked.status != 0 || rest.status != 0) return listing;
  ForEachItem(rest.output, [&](std::string_view path) {
    if (path.ends_with('/')) {
      listing.repositories.emplace_back(path.substr(0, path.size() - 1));
    } else {
      take(path);
    }
  });
  const bool isEmpty = tracked.output.empty() && rest.output.empty();
  listing.isListed = !isEmpty || !IsIgnoredByGit(directory);
  return listing;
}

}  // namespace vexltags
