// SPDX-License-Identifier: MIT
// Sorts the tags of all files without copying them. Tags are first divided by their first eight
// bytes into as many parts as there are threads.
#include "tree/tag_sort.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <numeric>
#include <thread>

namespace vexltags::tree {
namespace {

constexpr std::size_t kFewBytes = std::size_t{1} << 20;
constexpr std::ptrdiff_t kShortRun = 2;
constexpr std::size_t kLongestPrefix = 256;
constexpr std::ptrdiff_t kAhead = 16;

/// Folds the letters among eight bytes; `first` is that of the letters to change, `isUp` whether
/// they are lower-case letters.
std::uint64_t Fold(std::uint64_t bytes, char first, bool isUp) {
  constexpr std::uint64_t kEach = 0x0101010101010101;
  const auto from = static_cast<std::uint64_t>(first);
  const std::uint64_t low = bytes & kEach * 0x7F;
  const std::uint64_t fromFirst = low + kEach * (0x80 - from);
  const std::uint64_t aboveLast = low + kEach * (0x80 - from - 26);
  const std::uint64_t letters = (fromFirst & ~aboveLast & ~bytes & kEach * 0x80) >> 2;
  return isUp ? bytes - letters : bytes + letters;
}

std::uint64_t Mapped(std::uint64_t bytes, TagOrder order) {
  if (order == TagOrder::kFoldDown) return Fold(bytes, 'A', false);
  if (order == TagOrder::kFoldUp) return Fold(bytes, 'a', true);
  return bytes;
}

char Mapped(char c, TagOrder order) {
  if (order == TagOrder::kFoldDown && c >= 'A' && c <= 'Z') return static_cast<char>(c + 32);
  if (order == TagOrder::kFoldUp && c >= 'a' && c <= 'z') return static_cast<char>(c - 32);
  return c;
}

/// Eight bytes of `text` from `from` on as a number that compares as they do, zeros past its end.
/// `text` is part of memory that can be read up to `limit`.
std::uint64_t EightBytes(std::string_view text, std::size_t from, const char* limit,
                         TagOrder order) {
  if (from >= text.size()) return 0;
  const std::size_t size = std::min(sizeof(std::uint64_t), text.size() - from);
  const char* const start = text.data() + from;
  std::uint64_t bytes = 0;
  if (static_cast<std::size_t>(limit - start) >= sizeof bytes) {
    std::memcpy(&bytes, start, sizeof bytes);
  } else {
    std::memcpy(&bytes, start, size);
  }
  if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
  if (size < sizeof bytes) bytes &= ~(~std::uint64_t{0} >> size * 8);
  return Mapped(bytes, order);
}

/// Returns whether a tab, with which all names end, is among the eight bytes.
bool HasTab(std::uint64_t bytes) {
  constexpr std::uint64_t kEach = 0x0101010101010101;
  const std::uint64_t others = bytes ^ kEach * '\t';
  return ((others - kEach) & ~others & kEach * 0x80) != 0;
}

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
  // Each thread looks at files of about the same size together.
  std::vector<std::size_t> bounds;
  std::size_t before = 0;
  for (std::size_t i = 0; i < files.size(); ++i) {
    while (before * static_cast<std::size_t>(threads) >= bounds.size() * bytes &&
           bounds.size() < static_cast<std::size_t>(threads)) {
      bounds.push_back(i);
    }
    before += files[i].entries.size();
  }
  bounds.resize(static_cast<std::size_t>(threads) + 1, files.size());
  std::vector<std::size_t> starts(files.size() + 1);
  RunInThreads(threads, [&](int number) {
    const auto part = static_cast<std::size_t>(number);
    for (std::size_t i = bounds[part]; i < bounds[part + 1]; ++i) {
      starts[i + 1] = CountEntries(files[i].entries);
    }
  });
  std::partial_sum(starts.begin(), starts.end(), starts.begin());
  std::vector<TagPlace> places(starts.back());
  RunInThreads(threads, [&](int number) {
    const auto part = static_cast<std::size_t>(number);
    for (std::size_t i = bounds[part]; i < bounds[part + 1]; ++i) {
      std::size_t at = 0;
      for (std::size_t tag = starts[i]; tag < starts[i + 1]; ++tag) {
        places[tag].file = static_cast<std::uint32_t>(i);
        places[tag].at = static_cast<std::uint32_t>(at);
        if (order != TagOrder::kFiles) sorter.SetKey(places[tag], 0);
        SkipEntry(files[i].entries, at);
      }
    }
  });
  if (order == TagOrder::kFiles) return places;
  // Parts of about the same size, by a sample of the keys.
  std::vector<std::uint64_t> sample;
  for (std::size_t i = 0; i < places.size(); i += places.size() / 1000 + 1) {
    sample.push_back(places[i].key);
  }
  std::sort(sample.begin(), sample.end());
  std::vector<TagPlace*> parts = {places.data()};
  for (int i = 1; i < threads; ++i) {
    const std::uint64_t split =
        sample[sample.size() * static_cast<std::size_t>(i) / static_cast<std::size_t>(threads)];
    parts.push_back(std::partition(parts.back(), places.data() + places.size(),
                                   [split](const TagPlace& tag) { return tag.key < split; }));
  }
  parts.push_back(places.data() + places.size());
  RunInThreads(threads, [&](int number) {
    const auto part = static_cast<std::size_t>(number);
    sorter.Sort(parts[part], parts[part + 1], 0);
  });
  return places;
}

}  // namespace vexltags::tree
