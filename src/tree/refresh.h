// SPDX-License-Identifier: MIT
// One run of vexltags-tree: brings the tags file up to date.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <thread>
#include <unordered_map>
#include <vector>

#include "cache/result_cache.h"
#include "thorough/session.h"
#include "tree/lookups.h"
#include "tree/output_file.h"
#include "tree/progress.h"
#include "tree/tags_patch.h"
#include "tree/tree_file.h"
#include "tree/tree_options.h"
#include "tree/worker_pool.h"

namespace vexltags::tree {

/// Exit statuses.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;

/// What a run did, for the summary.
struct RefreshCounts {
  std::size_t files = 0;
  std::size_t filesRead = 0;
  std::size_t tags = 0;
  bool isWritten = false;  ///< False if the tags file was fresh already.
};

/// One run. The steps are in refresh.cc, refresh_reading.cc, refresh_learning.cc and
/// refresh_output.cc; the last step is split between them and refresh_patch.cc and
/// refresh_report.cc.
class Refresh {
 public:
  /// `options` must outlive the object. The run ends, without a message, when `goesOn` returns
  /// false.
  explicit Refresh(const TreeOptions& options, std::function<bool()> goesOn = nullptr)
      : options(options), goesOn(std::move(goesOn)), progress(options.isQuiet) {}

  /// Does everything, prints messages and the summary, and returns the exit status. To be called
  /// once.
  int Run();

 private:
  enum class Outcome : std::uint8_t { kDone, kFailed, kDamagedCache };

  /// Does what `Run` does, and leaves the cache open.
  int RunWithCache();
  /// A run up to the end, or to the discovery that the cache is damaged.
  Outcome Try();
  void OpenCache();
  /// Prints why there is no cache, once.
  void LoseCache();
  bool IsDamaged() const { return cache && cache->Error() == DatabaseError::kDamaged; }

  // Listing.
  /// Prints its messages and makes `files` of it; false if an argument does not exist.
  bool TakeList(SourceList list);
  void MatchRows();
  /// Sets what the cache knows of a file, without its content.
  void MatchRow(TreeFile& file);
  bool IsFresh();
  bool IsOutputFresh(const std::optional<struct stat>& file) const;
  /// The tags file as it is now, if there is one.
  std::optional<struct stat> OutputStatus() const;
  /// What the cache knows of the tags file, if `file` is that which was left; else null.
  nlohmann::json OutputRecord(const std::optional<struct stat>& file) const;
  /// Counts the changes of what the cache knows of tags.
  int Revision() const;
  std::string ListingHash(const std::vector<std::string>& others) const;
  std::string OutputKey() const;

  // Reading.
  bool CheckContents();
  /// Takes what has been scanned of a file for what is known of it.
  void CheckContent(TreeFile& file);
  bool ReadFiles(const std::vector<std::uint32_t>& numbers, bool forFacts, const char* verb);
  std::vector<PooledRequest> RequestsFor(const std::vector<std::uint32_t>& numbers,
                                         bool forFacts) const;
  PoolEvents Events();
  std::int64_t SizeOf(const std::vector<std::uint32_t>& numbers) const;
  /// Says that there are no workers, unless that is wanted.
  void ReportWorkers();
  void TakeAnswer(Answer&& answer);
  /// Has the hosts read what they can, and removes that from `requests`.
  void ReadOnHosts(std::vector<PooledRequest>& requests, const PoolEvents& events);
  bool IndexFiles();
  bool NumberAnon();

  // Learning, see refresh_learning.cc.
  bool Learn();
  void LearnAll();
  void MakeSession(const std::vector<std::string>* order);
  /// The facts of the file at `path`, from which macros are learned; nothing if it cannot be read.
  std::optional<std::string_view> FactsOf(const std::string& path);
  /// Waits until the file has been scanned, if it is to be.
  void WaitForScan(std::uint32_t number);
  /// Waits for what is left to be scanned; false if that is not possible.
  bool FinishScan();
  /// Whether there is now a file where an include was looked for in vain, or a new macro file.
  bool SurroundingsChanged() const;
  bool OthersChanged();
  std::string MacroListing() const;
  std::string State(const char* key) const;

  // Output, see refresh_output.cc.
  bool WriteOutput();
  bool WriteEverything(OutputFile& file);
  /// Writes the new tags file from the old one, if few files have changed and nothing else depends
  /// on them. False if that is not possible; the output then has to be opened again.
  bool WritePatched(OutputFile& file);
  bool FindChanges(std::vector<PatchLine>& removed, std::vector<PatchLine>& added);
  /// The tags of a file for the output, with made-up names numbered as in `tags`.
  TaggedFile Tagged(const std::string& path, const FileInfo& info, std::string_view tags);
  /// Whether these numbers change if `base` such names come before those of the file.
  static bool NeedsNumbers(const FileInfo& info, std::int32_t base);
  bool TakeInfos();
  std::string FieldOf(const std::string& path, const FileInfo& info);
  void StoreFiles();
  /// Starts to store all files in a new cache, in a thread, while the output is written. The cache
  /// is used by that thread alone until `storing` is joined.
  void StartStoring();
  /// Stores what is new, `file` being the tags file.
  void FinishCache(const struct stat& file);
  void PrintSummary() const;
  void PrintProblems();
  void PrintReport();

  const TreeOptions& options;
  std::function<bool()> goesOn;
  Progress progress;
  std::unique_ptr<ResultCache> cache;
  bool lostCache = false;
  bool isChanged = false;       ///< The cache has to be changed.
  bool tagsChanged = false;     ///< The tags are not those of the last run.
  bool hasFailures = false;     ///< Some files could not be read.
  std::int64_t startedAt = 0;   ///< Nanoseconds since 1970.
  std::vector<TreeFile> files;  ///< Sources in order, then others.
  std::size_t sourceCount = 0;
  std::unordered_map<std::string_view, CachedFile*> rowOf;
  std::vector<CachedFile> rows;
  std::vector<std::int64_t> removedRows;
  bool listChanged = false;
  bool hasNewSurroundings = false;
  bool factsChanged = false;

  std::optional<thorough::Session> session;
  std::unordered_map<std::string, std::uint32_t> numberOf;  ///< Path to index in `files`.
  std::unordered_map<std::int64_t, std::string> cachedFacts;
  std::vector<std::string> missing;  ///< Paths at which an include was looked for in vain.
  bool hasNewDigests = false;        ///< The session has learned what the cache may not know.
  std::string newDigests;            ///< Its digests, if they are known already.
  std::vector<std::string> learnedOrder;

  AnswerStores stores;             ///< Where results are.
  std::optional<WorkerPool> scan;  ///< Scans files while the session learns.
  bool scanFailed = false;
  std::deque<std::string> entries;  ///< Those whose made-up names have been numbered.
  OutputStyle style;
  std::filesystem::path outputFolder;
  bool isOutputHere = false;                  ///< It is the working directory.
  std::string fieldFolder;                    ///< The folder of the last file ...
  std::optional<std::string> relativeFolder;  ///< ... and how the file field names it.
  std::thread storing;
  bool isStored = false;  ///< All files are in the cache.
  RefreshCounts counts;
};

}  // namespace vexltags::tree
