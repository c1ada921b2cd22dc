// SPDX-License-Identifier: MIT
// Lists each argument through git or by walking, then sorts.
#include "sources/source_list.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <set>
#include <string_view>
#include <system_error>
#include <unordered_set>
#include <utility>

#include "sources/git_files.h"
#include "sources/header_guess.h"
#include "sources/path_filter.h"

namespace vexltags {
namespace {

namespace fs = std::filesystem;

/// Files that mark their directory as one that a tool made and can make again.
constexpr std::string_view kMarkers[] = {"CACHEDIR.TAG", "pyvenv.cfg"};

constexpr std::int64_t kNanoseconds = 1000000000;

FileStamp StampOf(const struct stat& status) {
  return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
          static_cast<std::int64_t>(status.st_size),
          static_cast<std::int64_t>(status.st_mtim.tv_sec) * kNanoseconds + status.st_mtim.tv_nsec};
}

/// Returns `path` without `.` components and repeated slashes; empty for the working directory.
std::string Tidy(std::string_view path) {
  std::string result = path.starts_with('/') ? "/" : "";
  while (!path.empty()) {
    const std::size_t slash = std::min(path.find('/'), path.size());
    const std::string_view component = path.substr(0, slash);
    path.remove_prefix(std::min(slash + 1, path.size()));
    if (component.empty() || component == ".") continue;
    if (!result.empty() && !result.ends_with('/')) result += '/';
    result += component;
  }
  return result;
}

std::string Join(const std::string& directory, std::string_view name) {
  std::string result = directory;
  if (!result.empty() && !name.empty() && !result.ends_with('/')) result += '/';
  return result += name;
}

std::string ForSystem(const std::string& path) { return path.empty() ? "." : path; }

bool IsMissing(int error) { return error == ENOENT || error == ENOTDIR || error == ELOOP; }

/// Collects the sources of one call.
class Lister {
 public:
  Lister(const SourceOptions& listOptions, bool severalArguments)
      : options(listOptions), hasSeveralArguments(severalArguments) {
    for (const std::string& pattern : DefaultExcludes()) walkPatterns.Add(pattern);
    for (const IgnorePattern& pattern : options.patterns.All()) {
      walkPatterns.Add((pattern.IsNegated() ? "!" : "") + pattern.Text());
    }
  }

  void AddArgument(const std::string& argument) {
    struct stat status;
    if (stat(argument.c_str(), &status) != 0) {
      list.missing.push_back(argument + ": " + std::strerror(errno));
      return;
    }
    root = Tidy(argument);
    if (S_ISDIR(status.st_mode)) {
      SetIdentity(root);
      PathFilter git(options.patterns);
      PathFilter walk(walkPatterns);
      gitFilter = &git;
      walkFilter = &walk;
      if (!options.useGit || GitTop(ForSystem(root)).empty() || !ListGit("")) Walk("");
    } else if (S_ISREG(status.st_mode)) {
      AddFileArgument(StampOf(status));
    } else {
      list.missing.push_back(argument + ": not a file or directory");
    }
  }

  SourceList Result() {
    DropKnownLinks();
    const auto byPath = [](const Source& a, const Source& b) { return a.path < b.path; };
    std::sort(list.sources.begin(), list.sources.end(), byPath);
    const auto samePath = [](const Source& a, const Source& b) { return a.path == b.path; };
    list.sources.erase(std::unique(list.sources.begin(), list.sources.end(), samePath),
                       list.sources.end());
    return std::move(list);
  }

 private:
  /// A source, if what it was found by counts.
  struct Candidate {
    Source source;
    std::string relative;  ///< The path from the root.
    bool isLink = false;
  };

  /// Notes which directory the paths of an argument are in, to find files that two arguments name.
  void SetIdentity(const std::string& directory) {
    if (!hasSeveralArguments) return;
    std::error_code error;
    identity = fs::canonical(ForSystem(directory), error).string();
    if (error) identity = directory;
  }

  void AddFileArgument(const FileStamp& stamp) {
    PathFilter filter(options.patterns);
    std::string_view relative = root;
    if (relative.starts_with('/')) relative.remove_prefix(1);
    if (filter.Judge(relative, false) == PathVerdict::kExcluded) return;
    LanguageSet languages = LanguagesOfSuffix(root);
    if (languages == 0) languages = kAnyHeader;
    if ((languages & options.languages) == 0) return;
    const fs::path path(root);
    SetIdentity(path.parent_path().string());
    Take({root, stamp}, path.filename().string());
  }

  /// Lists the directory `at`, relative to the root, through git. False if git does not know it.
  bool ListGit(const std::string& at) {
    const std::string directory = ForSystem(Join(root, at));
    std::vector<Candidate> candidates;
    const std::size_t problems = list.problems.size();
    const GitListing listing = ListGitFiles(
        directory, at.empty() ? options.patterns : UnanchoredPatterns(),
        [&](std::string_view file) { Consider(Join(at, file), *gitFilter, candidates); });
    if (!listing.isListed) list.problems.resize(problems);
    if (!listing.problem.empty()) list.problems.push_back(listing.problem);
    if (!listing.isListed) return false;
    Take(candidates);
    for (const std::string& below : listing.repositories) {
      const std::string path = Join(at, below);
      if (gitFilter->Judge(path, true) == PathVerdict::kExcluded) continue;
      // A submodule that is not checked out is an empty directory.
      std::error_code error;
      if (!fs::exists(Join(Join(root, path), ".git"), error)) continue;
      if (!ListGit(path)) Walk(path);
    }
    return true;
  }

  IgnorePatterns UnanchoredPatterns() const {
    IgnorePatterns result;
    for (const IgnorePattern& pattern : options.patterns.All()) {
      if (!pattern.IsAnchored()) result.Add((pattern.IsNegated() ? "!" : "") + pattern.Text());
    }
    return result;
  }

  void Walk(const std::string& start) {
    std::vector<std::string> waiting = {start};
    std::vector<Candidate> candidates;
    while (!waiting.empty()) {
      const std::string at = std::move(waiting.back());
      waiting.pop_back();
      std::vector<fs::directory_entry> entries;
      ReadDirectory(Join(root, at), entries);
      if (at != start && options.useGit && Has(entries, ".git") && ListGit(at)) continue;
      if (!at.empty() && IsMarked(entries) && !IsTakenByPattern(at)) continue;
      for (const fs::directory_entry& entry : entries) {
        const std::string path = Join(at, entry.path().filename().string());
        std::error_code error;
        if (entry.symlink_status(error).type() != fs::file_type::directory) {
          Consider(path, *walkFilter, candidates);
        } else if (walkFilter->Judge(path, true) != PathVerdict::kExcluded) {
          waiting.push_back(path);
        }
      }
    }
    Take(candidates);
  }

  void ReadDirectory(const std::string& path, std::vector<fs::directory_entry>& entries) {
    std::error_code error;
    fs::directory_iterator iterator(ForSystem(path), error);
    while (!error && iterator != fs::directory_iterator()) {
      entries.push_back(*iterator);
      iterator.increment(error);
    }
    if (error) Report(ForSystem(path), error.value());
  }

  static bool Has(const std::vector<fs::directory_entry>& entries, std::string_view name) {
    return std::any_of(entries.begin(), entries.end(),
                       [name](const auto& entry) { return entry.path().filename() == name; });
  }
  static bool IsMarked(const std::vector<fs::directory_entry>& entries) {
    return std::any_of(std::begin(kMarkers), std::end(kMarkers),
                       [&](std::string_view marker) { return Has(entries, marker); });
  }
  bool IsTakenByPattern(const std::string& path) const {
    const IgnorePattern* pattern = options.patterns.Find(path, true);
    return pattern != nullptr && pattern->IsNegated();
  }

  /// Adds the file `path`, relative to the root, to `candidates` if it is a source.
  void Consider(const std::string& path, PathFilter& filter, std::vector<Candidate>& candidates) {
    LanguageSet languages = LanguagesOfSuffix(path);
    const bool isBare = HasNoSuffix(path);
    if (languages == 0 && !isBare && options.patterns.Empty()) return;
    const PathVerdict verdict = filter.Judge(path, false);
    if (verdict == PathVerdict::kExcluded) return;
    const bool isNamed = verdict == PathVerdict::kNamed;
    const bool isKnown = languages != 0;
    if (!isKnown && !isBare && !isNamed) return;
    if (!isKnown) languages = kAnyHeader;
    if ((languages & options.languages) == 0) return;

    const std::string full = Join(root, path);
    struct stat status;
    if (lstat(full.c_str(), &status) != 0) {
      if (!IsMissing(errno)) Report(full, errno);
      return;
    }
    const bool isLink = S_ISLNK(status.st_mode);
    if (isLink && stat(full.c_str(), &status) != 0) return;
    if (!S_ISREG(status.st_mode)) return;
    if (!isKnown && !IsText(full, isNamed)) return;
    candidates.push_back({{full, StampOf(status)}, path, isLink});
  }

  void Take(std::vector<Candidate>& candidates) {
    for (Candidate& candidate : candidates) {
      if (candidate.isLink) {
        links.push_back(std::move(candidate.source));
      } else {
        Take(std::move(candidate.source), candidate.relative);
      }
    }
  }

  static bool IsText(const std::string& path, bool isNamed) {
    const std::string start = ReadStart(path);
    if (isNamed) return start.find('\0') == start.npos;
    return LooksLikeHeader(start);
  }

  void Take(Source source, const std::string& relative) {
    if (hasSeveralArguments && !taken.insert(Join(identity, relative)).second) return;
    list.sources.push_back(std::move(source));
  }

  /// Adds the symbolic links to files that are not listed otherwise.
  void DropKnownLinks() {
    if (links.empty()) return;
    std::set<std::pair<std::uint64_t, std::uint64_t>> known;
    for (const Source& source : list.sources) {
      known.emplace(source.stamp.device, source.stamp.inode);
    }
    std::sort(links.begin(), links.end(),
              [](const Source& a, const Source& b) { return a.path < b.path; });
    for (Source& link : links) {
      if (known.emplace(link.stamp.device, link.stamp.inode).second) {
        list.sources.push_back(std::move(link));
      }
    }
  }

  void Report(const std::string& path, int error) {
    list.problems.push_back("cannot read " + path + ": " + std::strerror(error));
  }

  const SourceOptions& options;
  const bool hasSeveralArguments;
  IgnorePatterns walkPatterns;  ///< The defaults, then those of the options.
  std::string root;             ///< The current argument.
  std::string identity;         ///< The directory of `root`, without symbolic links.
  PathFilter* gitFilter = nullptr;
  PathFilter* walkFilter = nullptr;
  std::vector<Source> links;
  std::unordered_set<std::string> taken;
  SourceList list;
};

}  // namespace

const std::vector<std::string>& DefaultExcludes() {
  static const std::vector<std::string> kPatterns = {".*/",          "CVS/",        "RCS/",
                                                     "SCCS/",        "_darcs/",     "node_modules/",
                                                     "__pycache__/", "CMakeFiles/", "DerivedData/"};
  return kPatterns;
}

SourceList ListSources(const std::vector<std::string>& arguments, const SourceOptions& options) {
  Lister lister(options, arguments.size() > 1);
  for (const std::string& argument : arguments) lister.AddArgument(argument);
  if (arguments.empty()) lister.AddArgument(".");
  return lister.Result();
}

}  // namespace vexltags
