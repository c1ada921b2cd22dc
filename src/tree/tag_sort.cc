// SPDX-License-Identifier: MIT
// Sorts the tags of all files without copying them. Tags are first put into buckets by the first
// two bytes of their names, which are then sorted one by one, in threads.
#include "tree/tag_sort.h"

#include <algorithm>
#include <atomic>
#include <numeric>

#include "tree/sort_key.h"
#include "tree/threads.h"

namespace vexltags::tree {
namespace {

constexpr std::size_t kFewBytes = std::size_t{1} << 20;
constexpr std::ptrdiff_t kShortRun = 2;
constexpr std::size_t kLongestPrefix = 256;
constexpr std::ptrdiff_t kAhead = 16;

class Sorter {
 public:
  Sorter(std::span<const TaggedFile> files, TagOrder order, TieOrder ties)
      : files(files), order(order), ties(ties) {
    for (const TaggedFile& file : files) ranks.push_back(file.rank);
  }

  TagEntry EntryOf(const TagPlace& place) const {
    TagEntry entry;
    std::size_t at = place.at;
    ReadEntry(files[place.file].entries, at, entry);
    return entry;
  }
  std::string_view KeyOf(const TagPlace& place) const {
    return NameWithTab(files[place.file].entries, place.at);
  }

  /// Sets the key of a tag to the sixteen bytes of its name at `from`.
  void SetKey(TagPlace& tag, std::size_t from) const {
    const std::string_view entries = files[tag.file].entries;
    const std::string_view name = NameWithTab(entries, tag.at);
    const char* const limit = entries.data() + entries.size();
    tag.key = EightBytes(name, from, limit, order);
    tag.more = EightBytes(name, from + sizeof tag.key, limit, order);
  }
  void SetKeys(TagPlace* first, TagPlace* last, std::size_t from) const {
    for (TagPlace* tag = first; tag != last; ++tag) {
      if (last - tag > kAhead) Prefetch(tag[kAhead]);
      SetKey(*tag, from);
    }
  }
  /// Fetches what is read of a tag soon. Tags that are sorted are all over the memory.
  void Prefetch(const TagPlace& place) const {
    __builtin_prefetch(files[place.file].entries.data() + place.at);
  }

  /// Sorts tags whose names agree up to `from`, and whose keys are set from there.
  void Sort(TagPlace* first, TagPlace* last, std::size_t from) const {
    std::sort(first, last, [](const TagPlace& a, const TagPlace& b) {
      return a.key != b.key ? a.key < b.key : a.more < b.more;
    });
    from += sizeof first->key + sizeof first->more;
    for (TagPlace* run = first; run != last;) {
      TagPlace* const end = std::find_if(run, last, [run](const TagPlace& tag) {
        return tag.key != run->key || tag.more != run->more;
      });
      if (end - run > 1) SortRun(run, end, from);
      run = end;
    }
  }

 private:
  /// Sorts tags whose names agree up to `from`.
  void SortRun(TagPlace* run, TagPlace* end, std::size_t from) const {
    const bool hasEnded = HasTab(run->key) || HasTab(run->more);
    if (hasEnded && order == TagOrder::kBytes) {
      SortFiles(run, end);
    } else if (!hasEnded && end - run > kShortRun && from < kLongestPrefix) {
      SetKeys(run, end, from);
      Sort(run, end, from);
    } else {
      std::sort(run, end, [this](const TagPlace& a, const TagPlace& b) { return Less(a, b); });
    }
  }

  /// Sorts tags with the same name.
  void SortFiles(TagPlace* run, TagPlace* end) const {
    std::sort(run, end, [this](const TagPlace& a, const TagPlace& b) {
      return ranks[a.file] != ranks[b.file] ? ranks[a.file] < ranks[b.file] : a.at < b.at;
    });
    for (TagPlace* same = run; same != end;) {
      TagPlace* const next = std::find_if(same, end, [this, same](const TagPlace& tag) {
        return ranks[tag.file] != ranks[same->file];
      });
      if (next - same > 1) SortLines(same, next);
      same = next;
    }
  }

  /// Sorts tags with the same name in the same file, which mostly are in the order of lines.
  void SortLines(TagPlace* first, TagPlace* last) const {
    if (ties == TieOrder::kLines) {
      for (TagPlace* tag = first; tag != last; ++tag) {
        tag->key = static_cast<std::uint64_t>(LineOf(EntryOf(*tag).rest));
      }
    }
    std::sort(first, last, [this](const TagPlace& a, const TagPlace& b) {
      if (ties == TieOrder::kLines && a.key != b.key) return a.key < b.key;
      return Less(a, b);
    });
  }

  bool Less(const TagPlace& a, const TagPlace& b) const {
    std::string_view xName = KeyOf(a);
    std::string_view yName = KeyOf(b);
    xName.remove_suffix(1);
    yName.remove_suffix(1);
    const int names = CompareNames(xName, yName, order);
    if (names != 0) return names < 0;
    if (ranks[a.file] != ranks[b.file]) return ranks[a.file] < ranks[b.file];
    const std::string_view x = EntryOf(a).rest;
    const std::string_view y = EntryOf(b).rest;
    if (ties == TieOrder::kLines) {
      const std::int32_t xLine = LineOf(x);
      const std::int32_t yLine = LineOf(y);
      if (xLine != yLine) return xLine < yLine;
    }
    const int rest = CompareEnded(x, y, '\n');
    return rest != 0 ? rest < 0 : a.at < b.at;
  }

  std::span<const TaggedFile> files;
  TagOrder order;
  TieOrder ties;
  std::vector<std::uint32_t> ranks;
};

/// Divides the files into parts of about the same size, one for each thread. Returns the index of
/// the first file of each part, and the number of files.
std::vector<std::size_t> SplitFiles(std::span<const TaggedFile> files, std::size_t bytes,
                                    int threads) {
  const auto parts = static_cast<std::size_t>(threads);
  std::vector<std::size_t> bounds;
  std::size_t before = 0;
  for (std::size_t i = 0; i < files.size(); ++i) {
    while (bounds.size() < parts && before * parts >= bounds.size() * bytes) bounds.push_back(i);
    before += files[i].entries.size();
  }
  bounds.resize(parts + 1, files.size());
  return bounds;
}

/// The tags of a part of the files, in their order.
struct FoundTags {
  std::vector<TagPlace> places;
  std::vector<std::uint32_t> counts;  ///< How many of them each bucket has.
};

constexpr unsigned kBucketShift = 48;
constexpr std::size_t kBuckets = std::size_t{1} << (64 - kBucketShift);
std::size_t BucketOf(const TagPlace& tag) { return tag.key >> kBucketShift; }

/// Returns the tags of each part of the files, which a thread looks through. Sets their keys by
/// `sorter`, null to leave them alone.
std::vector<FoundTags> FindTags(std::span<const TaggedFile> files,
                                const std::vector<std::size_t>& bounds, const Sorter* sorter) {
  /// Of an entry, in bytes. Memory for more tags than there are is never touched.
  constexpr std::size_t kSmall = 32;
  std::vector<FoundTags> found(bounds.size() - 1);
  RunInThreads(static_cast<int>(found.size()), [&](int number) {
    const auto part = static_cast<std::size_t>(number);
    FoundTags& tags = found[part];
    tags.counts.resize(kBuckets);
    std::size_t bytes = 0;
    for (std::size_t i = bounds[part]; i < bounds[part + 1]; ++i) bytes += files[i].entries.size();
    tags.places.reserve(bytes / kSmall);
    for (std::size_t i = bounds[part]; i < bounds[part + 1]; ++i) {
      TagPlace tag;
      tag.file = static_cast<std::uint32_t>(i);
      for (std::size_t at = 0;
           tag.at = static_cast<std::uint32_t>(at), SkipEntry(files[i].entries, at);) {
        if (sorter != nullptr) sorter->SetKey(tag, 0);
        tags.places.push_back(tag);
        ++tags.counts[BucketOf(tag)];
      }
    }
  });
  return found;
}

/// Returns the tags of all parts, one bucket after the other, and sets `starts` to where each
/// bucket begins, and the end.
std::vector<TagPlace> PutIntoBuckets(std::vector<FoundTags> found,
                                     std::vector<std::size_t>& starts) {
  starts.assign(kBuckets + 1, 0);
  std::size_t next = 0;
  for (std::size_t bucket = 0; bucket < kBuckets; ++bucket) {
    starts[bucket] = next;
    for (FoundTags& tags : found) {
      // From now on where the next tag of the part goes.
      const std::size_t count = tags.counts[bucket];
      tags.counts[bucket] = static_cast<std::uint32_t>(next);
      next += count;
    }
  }
  starts[kBuckets] = next;
  std::vector<TagPlace> places(next);
  RunInThreads(static_cast<int>(found.size()), [&](int number) {
    FoundTags& tags = found[static_cast<std::size_t>(number)];
    for (const TagPlace& tag : tags.places) places[tags.counts[BucketOf(tag)]++] = tag;
  });
  return places;
}

}  // namespace

int CompareEnded(std::string_view a, std::string_view b, char end) {
  const std::size_t common = std::min(a.size(), b.size());
  const int order = a.substr(0, common).compare(b.substr(0, common));
  if (order != 0 || a.size() == b.size()) return order;
  const bool isLonger = a.size() > b.size();
  const auto next = static_cast<unsigned char>(isLonger ? a[common] : b[common]);
  return (next > static_cast<unsigned char>(end)) == isLonger ? 1 : -1;
}

void RankFiles(std::span<TaggedFile> files) {
  std::vector<std::uint32_t> numbers(files.size());
  std::iota(numbers.begin(), numbers.end(), 0);
  const auto less = [files](std::uint32_t a, std::uint32_t b) {
    return CompareEnded(files[a].field, files[b].field, '\t') < 0;
  };
  std::sort(numbers.begin(), numbers.end(), less);
  std::uint32_t rank = 0;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (i > 0 && less(numbers[i - 1], numbers[i])) ++rank;
    files[numbers[i]].rank = rank;
  }
}

int CompareNames(std::string_view a, std::string_view b, TagOrder order) {
  if (order == TagOrder::kFoldDown || order == TagOrder::kFoldUp) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
      const auto x = static_cast<unsigned char>(Mapped(a[i], order));
      const auto y = static_cast<unsigned char>(Mapped(b[i], order));
      if (x != y) return x < y ? -1 : 1;
    }
    // The tab after the shorter name takes part before case decides.
    if (a.size() != b.size()) return CompareEnded(a.substr(common), b.substr(common), '\t');
  }
  return CompareEnded(a, b, '\t');
}

std::vector<TagPlace> SortTags(std::span<const TaggedFile> files, TagOrder order, TieOrder ties,
                               int threads) {
  const Sorter sorter(files, order, ties);
  std::size_t bytes = 0;
  for (const TaggedFile& file : files) bytes += file.entries.size();
  if (bytes < kFewBytes) threads = 1;
  std::vector<FoundTags> found = FindTags(files, SplitFiles(files, bytes, threads),
                                          order == TagOrder::kFiles ? nullptr : &sorter);
  // Without keys, all tags are in one bucket.
  std::vector<std::size_t> starts;
  std::vector<TagPlace> places = PutIntoBuckets(std::move(found), starts);
  if (order == TagOrder::kFiles) return places;
  std::atomic<std::size_t> next = 0;
  RunInThreads(threads, [&](int) {
    constexpr std::size_t kAtOnce = 64;
    for (std::size_t first; (first = next.fetch_add(kAtOnce)) < kBuckets;) {
      for (std::size_t i = first; i < first + kAtOnce; ++i) {
        sorter.Sort(places.data() + starts[i], places.data() + starts[i + 1], 0);
      }
    }
  });
  return places;
}

}  // namespace vexltags::tree
