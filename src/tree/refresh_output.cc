// SPDX-License-Identifier: MIT
// What a run writes: the tags file, the cache and the summary.
#include <limits.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <utility>

#include "formats/language_names.h"
#include "portable/portable_path.h"
#include "tree/refresh.h"
#include "tree/threads.h"

namespace vexltags::tree {
namespace {

using nlohmann::json;

/// The path of `path` as readers of a tags file in `folder` need it.
std::string RelativePath(const std::string& path, const std::filesystem::path& folder) {
  const std::filesystem::path whole = std::filesystem::absolute(path).lexically_normal();
  const std::filesystem::path relative = whole.lexically_relative(folder);
  if (!relative.empty() && *relative.begin() != "..") return relative;
  // Outside the folder, links on the way up make a difference.
  std::error_code error;
  const std::filesystem::path real = std::filesystem::canonical(path, error);
  if (error) return whole;
  return real.lexically_relative(std::filesystem::canonical(folder, error));
}

json StampOf(const struct stat& info) {
  return {info.st_dev, info.st_ino, info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

json StyleOf(const OutputStyle& style) {
  return {static_cast<int>(style.format), static_cast<int>(style.address), style.sort};
}

/// True if `record` describes a tags file in this style.
bool Describes(const json& record, const struct stat& file, const OutputStyle& style,
               int revision) {
  return record.is_object() && record.value("style", json()) == StyleOf(style) &&
         record.value("revision", -1) == revision && record.value("stamp", json()) == StampOf(file);
}

}  // namespace

std::string Refresh::OutputKey() const {
  std::error_code error;
  return "output " + std::filesystem::weakly_canonical(options.output, error).string();
}

std::optional<struct stat> Refresh::OutputStatus() const {
  struct stat info;
  if (stat(options.output.c_str(), &info) != 0) return std::nullopt;
  return info;
}

json Refresh::OutputRecord(const std::optional<struct stat>& file) const {
  if (!cache || cache->IsNew() || options.output == "-" || !file) return {};
  json record = json::parse(State(OutputKey().c_str()), nullptr, false);
  return Describes(record, *file, options.style, Revision()) ? record : json();
}

bool Refresh::IsFresh() {
  if (options.wantsReport) return false;
  const json record = OutputRecord(OutputStatus());
  if (record.is_null() || record.value("listing", "") != ListingHash(SplitPaths(State("others")))) {
    return false;
  }
  if (hasNewSurroundings) return false;
  counts.tags = record.value("tags", std::size_t{0});
  return true;
}

int Refresh::Revision() const { return std::atoi(State("revision").c_str()); }

bool Refresh::IsOutputFresh(const std::optional<struct stat>& file) const {
  return !tagsChanged && !OutputRecord(file).is_null();
}

bool Refresh::TakeInfos() {
  style = options.style;
  style.isUtf8 = true;
  outputFolder = options.output == "-"
                     ? std::filesystem::current_path()
                     : std::filesystem::absolute(options.output).lexically_normal().parent_path();
  isOutputHere = outputFolder == std::filesystem::current_path();
  for (std::size_t i = 0; i < sourceCount; ++i) {
    if (!files[i].IsRead()) {
      hasFailures = true;
      continue;
    }
    const InfoHead head = files[i].Head();
    style.isUtf8 = style.isUtf8 && head.isUtf8;
    counts.tags += head.tagCount;
  }
  return true;
}

std::string Refresh::FieldOf(const std::string& path, const FileInfo& info) {
  if (style.format == Format::kRaw) return info.stored;
  const bool isPlain =
      !path.starts_with('/') && path.find("//") == path.npos && path.find("./") == path.npos;
  if (isPlain && isOutputHere) return path;
  // Files of a folder follow each other.
  const std::size_t slash = path.rfind('/');
  const std::string folder = path.substr(0, slash == path.npos ? 0 : slash + 1);
  if (!relativeFolder || folder != fieldFolder) {
    fieldFolder = folder;
    relativeFolder = RelativePath(folder + "x", outputFolder);
    relativeFolder->pop_back();
  }
  // Outside the output folder, links are resolved.
  if (relativeFolder->starts_with("..") || relativeFolder->starts_with('/')) {
    return RelativePath(path, outputFolder);
  }
  return *relativeFolder + path.substr(folder.size());
}

TaggedFile Refresh::Tagged(const std::string& path, const FileInfo& info, std::string_view tags) {
  TaggedFile file;
  file.entries = tags;
  file.field = FieldOf(path, info);
  file.language = LanguageName(path);
  file.rest = info.rest;
  file.hasOddLines = info.hasOddLines;
  return file;
}

bool Refresh::NeedsNumbers(const FileInfo& info, std::int32_t base) {
  return info.anonCount > 0 && info.anonStart < 0 && base > 0;
}

bool Refresh::WriteEverything(OutputFile& output) {
  /// A file whose made-up names get other numbers, each in some thread.
  struct Renumbering {
    std::size_t file;
    std::int32_t base;
    std::string& entries;
  };
  std::unordered_map<std::int64_t, std::string> cached;
  const bool needsCached = std::any_of(files.begin(), files.end(), [](const TreeFile& file) {
    return file.isListed && file.hasResult && !file.result;
  });
  if (needsCached) {
    cache->ForEachBlob(BlobKind::kResult, [&cached](std::int64_t id, std::string_view bytes) {
      cached.emplace(id, bytes);
    });
    if (IsDamaged()) return false;
  }
  std::vector<TaggedFile> tagged;
  tagged.reserve(sourceCount);
  std::vector<Renumbering> renumberings;
  std::int32_t base = 0;
  for (std::size_t i = 0; i < sourceCount; ++i) {
    const TreeFile& file = files[i];
    if (!file.IsRead()) continue;
    FileInfo decoded;
    if (!file.result && !DecodeInfo(file.row.info, decoded)) return false;
    const FileInfo& info = file.result ? file.result->info : decoded;
    const std::string_view tags = file.result ? file.result->entries.View() : cached[file.row.id];
    TaggedFile entry = Tagged(file.path, info, tags);
    const bool isRenumbered = NeedsNumbers(info, base);
    const std::int32_t start = std::exchange(base, base + info.anonCount);
    if (style.format == Format::kTags && !FitsInLine(entry.field)) {
      std::fprintf(stderr,
                   "vexltags-tree: the path of a file has a tab or newline; its tags are "
                   "left out\n");
      continue;
    }
    if (isRenumbered) renumberings.push_back({tagged.size(), start, entries.emplace_back()});
    tagged.push_back(std::move(entry));
  }
  std::atomic<std::size_t> next = 0;
  RunInThreads(renumberings.empty() ? 1 : options.jobs, [&](int) {
    for (std::size_t i; (i = next++) < renumberings.size();) {
      Renumbering& one = renumberings[i];
      std::string_view& tags = tagged[one.file].entries;
      one.entries = RenumberAnon(tags, one.base);
      tags = one.entries;
    }
  });
  return WriteAllTags(tagged, style, options.jobs,
                      [&output](std::string_view bytes) { return output.Write(bytes); });
}

bool Refresh::WriteOutput() {
  OutputFile output;
  // What is recorded is the file that was looked at: another run can replace it at any time.
  const std::optional<struct stat> present = OutputStatus();
  counts.isWritten = !IsOutputFresh(present);
  if (counts.isWritten) {
    bool isOpen = output.Open(options.output);
    bool isWritten = isOpen && WritePatched(output);
    if (isOpen && !isWritten && !IsDamaged()) {
      isOpen = output.Open(options.output);
      StartStoring();
      isWritten = isOpen && WriteEverything(output);
      if (storing.joinable()) storing.join();
    }
    if (!isWritten || IsDamaged() || !output.Commit()) {
      if (IsDamaged()) return false;
      progress.Clear();
      std::fprintf(stderr, "vexltags-tree: error %s %s\n", isOpen ? "writing" : "creating",
                   options.output == "-" ? "<stdout>" : options.output.c_str());
      return false;
    }
  }
  FinishCache(counts.isWritten ? output.Status() : *present);
  return true;
}

void Refresh::StartStoring() {
  // A new cache has nothing that is needed meanwhile.
  if (!cache || !cache->IsNew() || !cache->Begin()) return;
  isStored = true;
  storing = std::thread([this] { StoreFiles(); });
}

void Refresh::StoreFiles() {
  for (const std::int64_t id : removedRows) cache->Remove(id);
  for (TreeFile& file : files) {
    const bool hasNewResult = file.result && file.result->info.status == FileStatus::kRead;
    const bool isStored = file.row.id != 0;
    CachedFile row;
    row.id = file.row.id;
    row.path = file.path;
    row.device = static_cast<std::int64_t>(file.stamp.device);
    row.inode = static_cast<std::int64_t>(file.stamp.inode);
    row.size = file.stamp.size;
    row.modifiedAt = file.stamp.modifiedAt;
    row.isDoubtful = file.isDoubtful;
    row.factsHash = file.facts ? file.factsHash : file.hasFacts ? file.row.factsHash : 0;
    row.resultHash = hasNewResult                     ? file.result->info.hash
                     : file.hasResult && !file.result ? file.row.resultHash
                                                      : 0;
    row.info = hasNewResult ? EncodeInfo(file.result->info) : file.row.info;
    // A file that could not be read is new next time.
    if (row.resultHash == 0 && (file.isListed || row.factsHash == 0)) {
      if (isStored) cache->Remove(row.id);
      continue;
    }
    if (!hasNewResult && !file.facts && isStored && row.size == file.row.size &&
        row.modifiedAt == file.row.modifiedAt && row.inode == file.row.inode &&
        row.device == file.row.device && row.isDoubtful == file.row.isDoubtful &&
        row.factsHash == file.row.factsHash && row.resultHash == file.row.resultHash) {
      continue;
    }
    cache->Put(row);
    if (file.facts) cache->PutBlob(row.id, BlobKind::kFacts, *file.facts);
    if (!hasNewResult) continue;
    cache->PutBlob(row.id, BlobKind::kResult, file.result->entries);
    cache->PutBlob(row.id, BlobKind::kLookups, file.result->lookups);
  }
}

void Refresh::FinishCache(const struct stat& file) {
  if (!cache) return;
  if (!isChanged && !counts.isWritten) return;
  if (!isStored && !cache->Begin()) {
    // Another run has stored its results meanwhile, which are as good.
    if (cache->Error() != DatabaseError::kNone && !IsDamaged()) LoseCache();
    return;
  }
  const int revision = Revision() + (tagsChanged ? 1 : 0);
  if (!isStored) StoreFiles();
  if (isChanged) {
    cache->PutState("revision", std::to_string(revision));
    cache->PutState("learned", JoinPaths(learnedOrder));
    cache->PutState("missing", JoinPaths(missing));
    cache->PutState("macro listing", MacroListing());
    std::vector<std::string> others;
    for (std::size_t i = sourceCount; i < files.size(); ++i) others.push_back(files[i].path);
    cache->PutState("others", JoinPaths(others));
    if (hasNewDigests && newDigests.empty()) newDigests = EncodeDigests(DigestsOf(*session));
    if (!newDigests.empty()) cache->PutState("digests", newDigests);
  }
  if (options.output != "-") {
    const bool isDoubtful =
        hasFailures || std::any_of(files.begin(), files.end(),
                                   [](const TreeFile& file) { return file.isDoubtful; });
    const json record = {{"style", StyleOf(options.style)},
                         {"stamp", StampOf(file)},
                         {"revision", revision},
                         {"listing", isDoubtful ? "" : ListingHash(SplitPaths(State("others")))},
                         {"isUtf8", style.isUtf8},
                         {"tags", counts.tags}};
    cache->PutState(OutputKey(), record.dump());
  }
  if (!cache->Commit()) LoseCache();
}

void Refresh::PrintSummary() const {
  if (options.isQuiet) return;
  std::fprintf(stderr, "vexltags-tree: %s: %zu tags of %zu files, %zu read%s\n",
               options.output == "-" ? "<stdout>" : options.output.c_str(), counts.tags,
               counts.files, counts.filesRead, counts.isWritten ? "" : ", up to date");
}

void Refresh::PrintProblems() {
  for (std::size_t i = 0; i < sourceCount; ++i) {
    const TreeFile& file = files[i];
    if (!file.result || file.result->info.status == FileStatus::kRead) continue;
    std::fprintf(stderr, "vexltags-tree: %s: %s\n", file.path.c_str(),
                 file.result->info.status == FileStatus::kDied
                     ? "the worker that read it died; it has no tags"
                     : "cannot be read");
  }
}

}  // namespace vexltags::tree
