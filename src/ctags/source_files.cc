// SPDX-License-Identifier: MIT
// Finds the sources that a run reads.
#include "ctags/source_files.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "ctags/exclusion.h"
#include "ctags/messages.h"
#include "ctags/text_file.h"

namespace vexltags::ctags {
namespace {

/// A folder by its device and number.
using FolderId = std::pair<dev_t, ino_t>;

/// Returns the names in the folder at `path`, sorted; none if it cannot be read.
std::vector<std::string> EntriesOf(const std::string& path) {
  std::vector<std::string> names;
  DIR* folder = opendir(path.empty() ? "." : path.c_str());
  if (folder == nullptr) {
    Warn("cannot open folder \"" + path + "\" : " + std::strerror(errno));
    return names;
  }
  while (const dirent* entry = readdir(folder)) {
    const std::string name = entry->d_name;
    if (name != "." && name != "..") names.push_back(name);
  }
  closedir(folder);
  std::sort(names.begin(), names.end());
  return names;
}

class Finder {
 public:
  Finder(const Settings& settings, std::vector<Source>& sources)
      : settings(settings), sources(sources) {}

  /// Adds the file or folder that the user named.
  void AddNamed(const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) {
      if (!IsExcluded(path, settings)) {
        Warn("cannot open input file \"" + path + "\" : " + std::strerror(errno));
      }
    } else if (S_ISDIR(status.st_mode)) {
      if (!settings.recurse) return;
      std::string folder = path;
      while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
      if (folder == ".") folder.clear();
      Enter(folder, {status.st_dev, status.st_ino}, 0);
    } else if (!IsExcluded(path, settings)) {
      AddFile(path);
    }
  }

 private:
  void AddFile(const std::string& path) {
    const Language* language = LanguageBySettings(path, settings);
    const std::string base = path.substr(path.rfind('/') + 1);
    const bool isUndecided = language == nullptr && base.find('.') == std::string::npos;
    if (language != nullptr && !settings.languages[IndexOf(*language)] &&
        !(IndexOf(*language) == kCxx && settings.languages[kObjectiveC])) {
      return;
    }
    if (language != nullptr || isUndecided) sources.push_back({path, language});
  }

  void Enter(const std::string& path, FolderId id, long depth) {
    if (settings.maxDepth >= 0 && depth >= settings.maxDepth) return;
    // A link to a folder above would never end.
    if (std::ranges::find(entered, id) != entered.end()) return;
    entered.push_back(id);
    for (const std::string& name : EntriesOf(path)) {
      std::string entry = path;
      if (!entry.empty() && !entry.ends_with('/')) entry += '/';
      entry += name;
      if (IsExcluded(entry, settings)) continue;
      struct stat status;
      if (lstat(entry.c_str(), &status) != 0) continue;
      if (S_ISLNK(status.st_mode)) {
        if (!settings.followLinks || stat(entry.c_str(), &status) != 0) continue;
      }
      if (S_ISDIR(status.st_mode)) {
        Enter(entry, {status.st_dev, status.st_ino}, depth + 1);
      } else if (S_ISREG(status.st_mode)) {
        AddFile(entry);
      }
    }
    entered.pop_back();
  }

  const Settings& settings;
  std::vector<Source>& sources;
  std::vector<FolderId> entered;  ///< The folders from the named one to the current one.
};

}  // namespace

const Language* LanguageBySettings(const std::string& path, const Settings& settings) {
  if (settings.forced != nullptr) return settings.forced;
  const std::string base = path.substr(path.rfind('/') + 1);
  // The last option that fits wins.
  for (auto it = settings.mappings.rbegin(); it != settings.mappings.rend(); ++it) {
    const std::string& name = it->first;
    if (name.starts_with('.') ? base.ends_with(name) : base == name) return it->second;
  }
  return LanguageOfPath(path);
}

bool FindSources(const Settings& settings, std::vector<Source>& sources) {
  if (settings.paths.empty() && settings.lists.empty() && !settings.recurse) {
    Report("No files specified. Try \"vexltags-ctags --help\".");
    return false;
  }
  Finder finder(settings, sources);
  for (const std::string& path : settings.paths) finder.AddNamed(path);
  for (const std::string& list : settings.lists) {
    std::vector<std::string> paths;
    if (const int reason = ReadLines(list, paths); reason != 0) {
      Report("cannot open list file \"" + list + "\" : " + std::strerror(reason));
      return false;
    }
    for (std::string& path : paths) {
      if (path.ends_with('\r')) path.pop_back();
      if (!path.empty()) finder.AddNamed(path);
    }
  }
  if (settings.paths.empty() && settings.lists.empty()) finder.AddNamed(".");
  return true;
}

}  // namespace vexltags::ctags
