// SPDX-License-Identifier: MIT
// What a run learns of macros, and which files have to be read again for it.
#include <algorithm>
#include <filesystem>

#include "cache/content_hash.h"
#include "tree/file_probe.h"
#include "tree/refresh.h"
#include "tree/worker.h"

namespace vexltags::tree {
namespace {

/// How long to wait for more when the next file to be learned is not there yet, in milliseconds.
constexpr int kShortPause = 3;

/// All files in and below `paths`, with their stamps, as text.
std::string ListingOf(const std::vector<std::string>& paths) {
  std::string listing;
  const auto add = [&listing](const std::string& path) {
    const auto stamp = StampOf(path);
    if (!stamp || !LearnsFrom(path)) return;
    listing += path;
    listing += '\0';
    listing.append(reinterpret_cast<const char*>(&*stamp), sizeof *stamp);
  };
  for (const std::string& path : paths) {
    std::error_code error;
    if (!std::filesystem::is_directory(path, error)) {
      add(path);
      continue;
    }
    const auto skip = std::filesystem::directory_options::skip_permission_denied;
    std::filesystem::recursive_directory_iterator it(path, skip, error);
    while (!error && it != std::filesystem::recursive_directory_iterator()) {
      add(it->path());
      it.increment(error);
    }
  }
  return listing;
}

}  // namespace

std::string Refresh::MacroListing() const {
  return options.macros.empty() ? "" : std::to_string(ContentHash(ListingOf(options.macros)));
}

std::string Refresh::State(const char* key) const { return cache ? cache->State(key) : ""; }

bool Refresh::SurroundingsChanged() const {
  FileProbe probe;
  for (const std::string& path : SplitPaths(State("missing"))) {
    if (probe.IsFile(path)) return true;
  }
  return State("macro listing") != MacroListing();
}

bool Refresh::OthersChanged() {
  for (const std::string& path : SplitPaths(State("others"))) {
    FactsOf(path);
    const TreeFile& file = files[numberOf.at(path)];
    if (file.hasFacts) continue;
    if (!file.facts || file.row.id == 0 ||
        !thorough::MacroTable::HaveSameDirectives(cache->Blob(file.row.id, BlobKind::kFacts),
                                                  *file.facts)) {
      return true;
    }
  }
  return false;
}

bool Refresh::Learn() {
  const bool learns =
      std::any_of(files.begin(), files.end(), [](const TreeFile& file) { return file.learns; });
  // Rows of files that are neither sources nor learned from.
  for (const CachedFile& row : rows) {
    if (row.resultHash != 0 && !numberOf.contains(row.path)) listChanged = true;
  }
  if (learns) {
    learnedOrder = SplitPaths(State("learned"));
    const bool isKnown = !learnedOrder.empty();
    if (!isKnown || listChanged || factsChanged || hasNewSurroundings || OthersChanged()) {
      LearnAll();
      if (!FinishScan()) return false;
    } else {
      missing = SplitPaths(State("missing"));
      const bool mustRead = std::any_of(files.begin(), files.end(), [](const TreeFile& file) {
        return file.isListed && !file.hasResult;
      });
      if (mustRead || options.wantsReport) MakeSession(&learnedOrder);
    }
  }
  for (const CachedFile& row : rows) {
    if (!numberOf.contains(row.path)) removedRows.push_back(row.id);
  }
  isChanged = isChanged || !removedRows.empty() || listChanged;
  tagsChanged = listChanged;
  return true;
}

void Refresh::LearnAll() {
  isChanged = true;
  MakeSession(nullptr);
  learnedOrder.assign(session->Files().begin(), session->Files().end());
  const std::string before = State("digests");
  hasNewDigests = true;
  if (before.empty()) return;
  const MacroDigests digests = DigestsOf(*session);
  newDigests = EncodeDigests(digests);
  if (before == newDigests) return;
  const WordSet words(ChangedWords(DecodeDigests(before), digests));
  std::unordered_map<std::int64_t, TreeFile*> known;
  for (std::size_t i = 0; i < sourceCount; ++i) {
    if (files[i].learns && files[i].hasResult) known.emplace(files[i].row.id, &files[i]);
  }
  cache->ForEachBlob(BlobKind::kLookups, [&](std::int64_t id, std::string_view lookups) {
    const auto file = known.find(id);
    if (file != known.end() && words.HasAnyOf(lookups)) file->second->hasResult = false;
  });
}

void Refresh::MakeSession(const std::vector<std::string>* order) {
  thorough::SessionSources sources;
  sources.facts = [this](const std::string& path) { return FactsOf(path); };
  sources.isFile = [this, probe = FileProbe()](const std::string& path) mutable {
    const bool isThere = probe.IsFile(path);
    if (!isThere) missing.push_back(path);
    return isThere;
  };
  if (order != nullptr) {
    session.emplace(*order, sources);
  } else {
    missing.clear();
    Options reading;
    reading.macroPaths = options.macros;
    std::vector<std::string> paths;
    for (std::size_t i = 0; i < sourceCount; ++i) paths.push_back(files[i].path);
    session.emplace(reading, paths, sources);
  }
  cachedFacts.clear();
}

void Refresh::WaitForScan(std::uint32_t number) {
  const bool isRequested = number < sourceCount;
  while (scan && isRequested && !files[number].isScanned) {
    if (!scan->Pump(kShortPause) && !scan->IsDone()) {
      scanFailed = true;
      scan.reset();
    }
  }
}

bool Refresh::FinishScan() {
  while (scan && scan->Pump(kPauseMilliseconds)) {
  }
  scanFailed = scanFailed || (scan && !scan->IsDone());
  scan.reset();
  if (scanFailed) ReportWorkers();
  progress.Clear();
  return !scanFailed;
}

std::optional<std::string_view> Refresh::FactsOf(const std::string& path) {
  const auto [known, isNew] = numberOf.emplace(path, static_cast<std::uint32_t>(files.size()));
  if (isNew) {
    TreeFile file;
    file.path = path;
    file.isListed = false;
    file.learns = true;
    if (const auto stamp = StampOf(path)) file.stamp = *stamp;
    MatchRow(file);
    if (!file.hasFacts) {
      std::string buffer;
      Answer answer = ReadFacts(path, buffer);
      if (answer.result.info.status == FileStatus::kRead) {
        file.facts = std::move(answer.facts);
        file.factsHash = answer.result.info.hash;
        isChanged = true;
      }
    }
    files.push_back(std::move(file));
  }
  const std::uint32_t number = known->second;
  WaitForScan(number);
  const TreeFile& file = files[number];
  if (file.facts) return *file.facts;
  if (!file.hasFacts) return std::nullopt;
  if (cachedFacts.empty()) {
    cache->ForEachBlob(BlobKind::kFacts, [this](std::int64_t id, std::string_view facts) {
      cachedFacts.emplace(id, facts);
    });
  }
  return cachedFacts[file.row.id];
}

}  // namespace vexltags::tree
