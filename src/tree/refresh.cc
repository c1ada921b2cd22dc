// SPDX-License-Identifier: MIT
// The steps of a run, and its listing.
#include "tree/refresh.h"

#include <limits.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <thread>
#include <utility>

#include "base/version.h"
#include "cache/content_hash.h"
#include "cache/old_caches.h"

namespace vexltags::tree {
namespace {

/// Changes with the form of what is stored.
constexpr char kCacheForm[] = "2";
/// Time stamps of files can be older than the change by this, in nanoseconds.
constexpr std::int64_t kTimeGrain = 20000000;
constexpr std::int64_t kCoarseGrain = 2000000000;
constexpr std::int64_t kSecond = 1000000000;

void Print(const std::string& message) {
  std::fprintf(stderr, "vexltags-tree: %s\n", message.c_str());
}

/// The folder of all caches; empty if there is no home.
std::string CacheFolder() {
  const char* cache = std::getenv("XDG_CACHE_HOME");
  if (cache != nullptr && cache[0] == '/') return std::string(cache) + "/vexltags/";
  const char* home = std::getenv("HOME");
  if (home == nullptr || home[0] != '/') return {};
  return std::string(home) + "/.cache/vexltags/";
}

/// What identifies this program: results of another one are not taken.
std::string ProgramIdentity() {
  std::string identity = std::string(kVersion) + kCacheForm;
  if (const auto stamp = StampOf("/proc/self/exe")) {
    identity += " " + std::to_string(stamp->size) + " " + std::to_string(stamp->modifiedAt);
  }
  return identity;
}

}  // namespace

int Refresh::Run() {
  const int status = RunWithCache();
  cache.reset();
  return status;
}

int Refresh::RunWithCache() {
  if (options.output != "-") {
    const std::string why = WhyNotReplaced(options.output);
    if (!why.empty()) {
      Print(options.output + " " + why + "; it is left as it is");
      return kFailed;
    }
  }
  for (int attempt = 0; attempt < 2; ++attempt) {
    const Outcome outcome = Try();
    progress.Clear();
    if (outcome == Outcome::kDone) return kDone;
    if (outcome == Outcome::kFailed) return kFailed;
    Print("the cache was damaged and is made anew");
    cache->RemoveFile();
    cache.reset();
    files.clear();
    rows.clear();
    rowOf.clear();
    removedRows.clear();
    numberOf.clear();
    cachedFacts.clear();
    missing.clear();
    newDigests.clear();
    entries.clear();
    session.reset();
    stores.clear();
    isChanged = tagsChanged = hasNewDigests = hasFailures = listChanged = factsChanged =
        scanFailed = isStored = false;
    counts = {};
  }
  return kFailed;
}

Refresh::Outcome Refresh::Try() {
  startedAt = std::chrono::duration_cast<std::chrono::nanoseconds>(
                  std::chrono::system_clock::now().time_since_epoch())
                  .count();
  SourceList list;
  // That mostly waits for git.
  std::thread listing([this, &list] { list = ListSources(options.folders, options.sources); });
  OpenCache();
  hasNewSurroundings = !options.isExact && SurroundingsChanged();
  listing.join();
  if (!TakeList(std::move(list))) return Outcome::kFailed;
  if (IsFresh()) {
    PrintSummary();
    return Outcome::kDone;
  }
  MatchRows();
  if (IsDamaged()) return Outcome::kDamagedCache;
  if (!CheckContents() || !Learn()) return Outcome::kFailed;
  if (IsDamaged()) return Outcome::kDamagedCache;
  if (!IndexFiles() || !NumberAnon()) return Outcome::kFailed;
  if (!TakeInfos()) return Outcome::kDamagedCache;
  if (!WriteOutput()) return IsDamaged() ? Outcome::kDamagedCache : Outcome::kFailed;
  PrintProblems();
  if (options.wantsReport) PrintReport();
  PrintSummary();
  return Outcome::kDone;
}

void Refresh::OpenCache() {
  if (!options.usesCache || lostCache) return;
  const std::string folder = CacheFolder();
  if (folder.empty()) return;
  char cwd[PATH_MAX];
  const char* home = std::getenv("HOME");
  const std::string identity = ProgramIdentity() + '\0' + (getcwd(cwd, sizeof cwd) ? cwd : "") +
                               '\0' + (home == nullptr ? "" : home) + '\0' + options.identity;
  char name[32];
  std::snprintf(name, sizeof name, "%016llx.db",
                static_cast<unsigned long long>(ContentHash(identity)));
  cache = std::make_unique<ResultCache>();
  if (!cache->Open(folder + name, identity)) return LoseCache();
  if (cache->IsNew()) {
    RemoveOldCaches(folder);
  } else {
    NoteUse(folder + name);
  }
  if (cache->WasDamaged()) Print("the cache was damaged and is made anew");
}

void Refresh::LoseCache() {
  progress.Clear();
  Print("working without a cache: " + (cache ? cache->Message() : std::string("no folder for it")));
  lostCache = true;
  cache.reset();
}

// Listing -----------------------------------------------------------------------------------------

bool Refresh::TakeList(SourceList list) {
  for (const std::string& problem : list.problems) Print(problem);
  for (const std::string& missingOne : list.missing) Print(missingOne);
  files.reserve(list.sources.size());
  for (Source& source : list.sources) {
    TreeFile file;
    file.path = std::move(source.path);
    file.stamp = source.stamp;
    file.learns = !options.isExact && LearnsFrom(file.path);
    files.push_back(std::move(file));
  }
  sourceCount = files.size();
  counts.files = sourceCount;
  return list.missing.empty();
}

void Refresh::MatchRows() {
  if (cache) rows = cache->Files();
  for (CachedFile& row : rows) rowOf.emplace(row.path, &row);
  for (std::uint32_t i = 0; i < files.size(); ++i) {
    numberOf.emplace(files[i].path, i);
    MatchRow(files[i]);
    // It is new, or was not a source before.
    if (files[i].row.resultHash == 0) listChanged = true;
  }
}

void Refresh::MatchRow(TreeFile& file) {
  // A file that changed just now may change again within one tick of its time stamp.
  const std::int64_t at = file.stamp.modifiedAt;
  file.isDoubtful = at > startedAt - (at % kSecond == 0 ? kCoarseGrain : kTimeGrain);
  const auto known = rowOf.find(file.path);
  if (known == rowOf.end()) return;
  file.row = *known->second;
  const CachedFile& row = file.row;
  const bool isSame = row.size == file.stamp.size && row.modifiedAt == file.stamp.modifiedAt &&
                      row.inode == static_cast<std::int64_t>(file.stamp.inode) &&
                      row.device == static_cast<std::int64_t>(file.stamp.device) && !row.isDoubtful;
  const bool isWhole = !file.learns || !file.isListed || row.factsHash == row.resultHash;
  file.hasFacts = isSame && isWhole && file.learns && row.factsHash != 0;
  file.hasResult = isSame && isWhole && file.isListed && row.resultHash != 0;
}

std::string Refresh::ListingHash(const std::vector<std::string>& others) const {
  std::string all;
  const auto add = [&all](const std::string& path, const FileStamp& stamp) {
    all += path;
    all += '\0';
    all.append(reinterpret_cast<const char*>(&stamp), sizeof stamp);
  };
  for (std::size_t i = 0; i < sourceCount; ++i) add(files[i].path, files[i].stamp);
  for (const std::string& path : others) {
    const auto stamp = StampOf(path);
    add(path, stamp ? *stamp : FileStamp());
  }
  return std::to_string(ContentHash(all));
}

}  // namespace vexltags::tree
