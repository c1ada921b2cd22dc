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

constexpr std::size_t kFewTags = 20000;
constexpr std::ptrdiff_t kShortRun = 8;
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
std::uint64_t EightBytes(std::string_view text, std::size_t from, TagOrder order) {
  std::uint64_t bytes = 0;
  if (from < text.size()) {
    std::memcpy(&bytes, text.data() + from, std::min(sizeof bytes, text.size() - from));
  }
  if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
  return Mapped(bytes, order);
}

class Sorter {
 public:
  Sorter(std::span<const TaggedFile> files, TagOrder order, TieOrder ties)
      : files(files), order(order), ties(ties) {}

  TagEntry EntryOf(const TagPlace& place) const {
    TagEntry entry;
    std::size_t at = place.at;
    ReadEntry(files[place.file].entries, at, entry);
    return entry;
  }
  std::string_view KeyOf(const TagPlace& place) const {
    return NameWithTab(files[place.file].entries, place.at);
  }

  /// Sets the keys of tags to the sixteen bytes of their names at `from`.
  void SetKeys(TagPlace* first, TagPlace* last, std::size_t from) const {
    for (TagPlace* tag = first; tag != last; ++tag) {
      if (last - tag > kAhead) Prefetch(tag[kAhead]);
      const std::string_view name = KeyOf(*tag);
      tag->key = EightBytes(name, from, order);
      tag->more = EightBytes(name, from + sizeof tag->key, order);
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
      const bool goesOn = end - run > kShortRun && from < kLongestPrefix &&
                          std::all_of(run, end, [this, from](const TagPlace& tag) {
                            return KeyOf(tag).size() > from;
                          });
      if (goesOn) {
        SetKeys(run, end, from);
        Sort(run, end, from);
      } else if (end - run > 1) {
        std::sort(run, end, [this](const TagPlace& a, const TagPlace& b) { return Less(a, b); });
      }
      run = end;
    }
  }

 private:
  bool Less(const TagPlace& a, const TagPlace& b) const {
    const TagEntry x = EntryOf(a);
    const TagEntry y = EntryOf(b);
    const int names = CompareNames(x.name, y.name, order);
    if (names != 0) return names < 0;
    const std::uint32_t xRank = files[a.file].rank;
    const std::uint32_t yRank = files[b.file].rank;
    if (xRank != yRank) return xRank < yRank;
    if (ties == TieOrder::kLines) {
      const std::int32_t xLine = LineOf(x.rest);
      const std::int32_t yLine = LineOf(y.rest);
      if (xLine != yLine) return xLine < yLine;
    }
    const int rest = CompareEnded(x.rest, y.rest, '\n');
    return rest != 0 ? rest < 0 : a.at < b.at;
  }

  std::span<const TaggedFile> files;
  TagOrder order;
  TieOrder ties;
};

std::vector<TagPlace> Places(std::span<const TaggedFile> files) {
  std::vector<TagPlace> places;
  for (std::uint32_t file = 0; file < files.size(); ++file) {
    TagEntry entry;
    std::size_t at = 0;
    std::size_t begin = 0;
    while (ReadEntry(files[file].entries, at, entry)) {
      places.push_back({0, 0, file, static_cast<std::uint32_t>(begin)});
      begin = at;
    }
  }
  return places;
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
  std::vector<TagPlace> places = Places(files);
  if (order == TagOrder::kFiles) return places;
  const Sorter sorter(files, order, ties);
  if (places.size() < kFewTags) threads = 1;
  const std::size_t share = places.size() / static_cast<std::size_t>(threads) + 1;
  RunInThreads(threads, [&](int number) {
    const std::size_t begin = std::min(places.size(), share * static_cast<std::size_t>(number));
    const std::size_t end = std::min(places.size(), begin + share);
    sorter.SetKeys(places.data() + begin, places.data() + end, 0);
  });
  // Parts of about the same size, by a sample of the keys.
  std::vector<std::uint64_t> sample;
  for (std::size_t i = 0; i < places.size(); i += places.size() / 1000 + 1) {
    sample.push_back(places[i].key);
  }
  std::sort(sample.begin(), sample.end());
  std::vector<TagPlace*> bounds = {places.data()};
  for (int i = 1; i < threads; ++i) {
    const std::uint64_t split =
        sample[sample.size() * static_cast<std::size_t>(i) / static_cast<std::size_t>(threads)];
    bounds.push_back(std::partition(bounds.back(), places.data() + places.size(),
                                    [split](const TagPlace& tag) { return tag.key < split; }));
  }
  bounds.push_back(places.data() + places.size());
  RunInThreads(threads, [&](int number) {
    const auto part = static_cast<std::size_t>(number);
    sorter.Sort(bounds[part], bounds[part + 1], 0);
  });
  return places;
}

}  // namespace vexltags::tree
