// SPDX-License-Identifier: MIT
// Sorts the tags of all files without copying them. Tags are first divided by their first eight
// bytes into as many parts as there are threads.
#include "tree/tag_sort.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <thread>

#include "tree/sort_key.h"

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
      return ranks[a.file] < ranks[b.file];
    });
    for (TagPlace* same = run; same != end;) {
      TagPlace* const next = std::find_if(same, end, [this, same](const TagPlace& tag) {
        return ranks[tag.file] != ranks[same->file];
      });
      if (next - same > 1) {
        std::sort(same, next, [this](const TagPlace& a, const TagPlace& b) { return Less(a, b); });
      }
      same = next;
    }
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

std::size_t CountEntries(std::string_view entries) {
  std::size_t count = 0;
  for (std::size_t at = 0; SkipEntry(entries, at);) ++count;
  return count;
}

void RunInThreads(int threads, const std::function<void(int)>& work) {
  std::vector<std::thread> others;
  for (int i = 1; i < threads; ++i) others.emplace_back(work, i);
  work(0);
  for (std::thread& other : others) other.join();
}

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

/// Returns the tags in the order of the files. Each part of them is looked through by a thread,
/// which calls `prepare` with each tag.
template <class Prepare>
std::vector<TagPlace> FindTags(std::span<const TaggedFile> files,
                               const std::vector<std::size_t>& bounds, Prepare prepare) {
  const auto forEachFile = [&bounds](const auto& work) {
    RunInThreads(static_cast<int>(bounds.size()) - 1, [&](int number) {
      const auto part = static_cast<std::size_t>(number);
      for (std::size_t i = bounds[part]; i < bounds[part + 1]; ++i) work(i);
    });
  };
  std::vector<std::size_t> starts(files.size() + 1);
  forEachFile([&](std::size_t i) { starts[i + 1] = CountEntries(files[i].entries); });
  std::partial_sum(starts.begin(), starts.end(), starts.begin());
  std::vector<TagPlace> places(starts.back());
  forEachFile([&](std::size_t i) {
    std::size_t at = 0;
    for (std::size_t tag = starts[i]; tag < starts[i + 1]; ++tag) {
      places[tag].file = static_cast<std::uint32_t>(i);
      places[tag].at = static_cast<std::uint32_t>(at);
      prepare(places[tag]);
      SkipEntry(files[i].entries, at);
    }
  });
  return places;
}

/// Puts tags into as many parts as there are threads, all of one part before those of the next, by
/// a sample of their keys. Returns where the parts begin, and the end.
std::vector<TagPlace*> SplitByKeys(std::vector<TagPlace>& places, int threads) {
  constexpr std::size_t kSample = 1000;
  std::vector<std::uint64_t> sample;
  for (std::size_t i = 0; i < places.size(); i += places.size() / kSample + 1) {
    sample.push_back(places[i].key);
  }
  std::sort(sample.begin(), sample.end());
  TagPlace* const end = places.data() + places.size();
  std::vector<TagPlace*> parts = {places.data()};
  for (int i = 1; i < threads; ++i) {
    const std::uint64_t split =
        sample[sample.size() * static_cast<std::size_t>(i) / static_cast<std::size_t>(threads)];
    parts.push_back(std::partition(parts.back(), end,
                                   [split](const TagPlace& tag) { return tag.key < split; }));
  }
  parts.push_back(end);
  return parts;
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
  std::vector<TagPlace> places = FindTags(files, SplitFiles(files, bytes, threads), [&](auto& tag) {
    if (order != TagOrder::kFiles) sorter.SetKey(tag, 0);
  });
  if (order == TagOrder::kFiles) return places;
  const std::vector<TagPlace*> parts = SplitByKeys(places, threads);
  RunInThreads(threads, [&](int number) {
    const auto part = static_cast<std::size_t>(number);
    sorter.Sort(parts[part], parts[part + 1], 0);
  });
  return places;
}

}  // namespace vexltags::tree
