// SPDX-License-Identifier: MIT
// Compares and sorts tag lines.
#include "output/line_order.h"

#include <strings.h>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <functional>

namespace vexltags {

namespace {

std::size_t NameLength(std::string_view line) { return std::min(line.find('\t'), line.size()); }

// What is done to bytes before they are compared, eight at a time.
struct AsTheyAre {
  std::uint64_t operator()(std::uint64_t bytes) const { return bytes; }
};
struct FoldAscii {
  std::uint64_t operator()(std::uint64_t bytes) const {
    constexpr std::uint64_t kEach = 0x0101010101010101;
    const std::uint64_t low = bytes & kEach * 0x7F;
    const std::uint64_t fromA = low + kEach * (0x80 - 'A');
    const std::uint64_t aboveZ = low + kEach * (0x80 - 'Z' - 1);
    const std::uint64_t isUpper = fromA & ~aboveZ & ~bytes & kEach * 0x80;
    return bytes + (isUpper >> 2);  // 0x20, the distance from upper to lower case.
  }
};

// Eight bytes of `text` from offset `from` as a number, with zeros past its end. Different numbers
// compare as the texts do, byte by byte and unsigned.
template <class Map>
std::uint64_t EightBytes(std::string_view text, std::size_t from, Map map) {
  std::uint64_t bytes = 0;
  if (from + sizeof bytes <= text.size()) {
    std::memcpy(&bytes, text.data() + from, sizeof bytes);
  } else if (from < text.size()) {
    std::memcpy(&bytes, text.data() + from, text.size() - from);
  }
  if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
  return map(bytes);
}

// A line during sorting: eight bytes of it, its index, and the length of its key. More lines than
// an index can count would not fit in memory.
struct Keyed {
  std::uint64_t bytes;
  std::uint32_t line;
  std::uint32_t keyLength;
};

/// Sorts lines by a key at their start, eight bytes at a time, so that most comparisons do not read
/// the lines. Short runs are sorted by `before`, which agrees with the order of the keys, and lines
/// with equal keys by `beforeInRun`, which agrees with `before`.
template <class Map, class Before, class BeforeInRun>
class KeySorter {
 public:
  KeySorter(const std::vector<std::string_view>& unsorted, Map keyMap, Before lineOrder,
            BeforeInRun orderInRun)
      : lines(unsorted), map(keyMap), before(lineOrder), beforeInRun(orderInRun) {}

  /// `from` is a multiple of eight; the keys are known to agree up to it.
  void Sort(Keyed* first, Keyed* last, std::size_t from) const {
    for (Keyed* item = first; item != last; ++item) {
      item->bytes = EightBytes(lines[item->line].substr(0, item->keyLength), from, map);
    }
    std::sort(first, last, [](const Keyed& a, const Keyed& b) { return a.bytes < b.bytes; });
    from += sizeof first->bytes;
    for (Keyed* run = first; run != last;) {
      Keyed* const end =
          std::find_if(run, last, [run](const Keyed& item) { return item.bytes != run->bytes; });
      const auto goesOn = [from](const Keyed& item) { return item.keyLength > from; };
      if (end - run > kShortRun && from < kLongestPrefix && std::all_of(run, end, goesOn)) {
        Sort(run, end, from);
      } else if (end - run > 1 && std::none_of(run, end, goesOn)) {
        SortBy(run, end, beforeInRun);
      } else if (end - run > 1) {
        SortBy(run, end, before);
      }
      run = end;
    }
  }

 private:
  template <class Order>
  void SortBy(Keyed* first, Keyed* last, Order order) const {
    std::sort(first, last, [this, order](const Keyed& a, const Keyed& b) {
      return order(lines[a.line], lines[b.line]);
    });
  }

  static constexpr std::ptrdiff_t kShortRun = 8;
  static constexpr std::size_t kLongestPrefix = 256;

  const std::vector<std::string_view>& lines;
  Map map;
  Before before;
  BeforeInRun beforeInRun;
};

// The key of line number `i` is its first `length` bytes.
Keyed Key(std::size_t i, std::size_t length) {
  return {0, static_cast<std::uint32_t>(i), static_cast<std::uint32_t>(length)};
}

template <class Map, class Before, class BeforeInRun>
void SortByKey(std::vector<std::string_view>& lines, std::vector<Keyed>& keyed, Map map,
               Before before, BeforeInRun beforeInRun) {
  KeySorter(lines, map, before, beforeInRun).Sort(keyed.data(), keyed.data() + keyed.size(), 0);
  // Moves each line to its place, cycle by cycle.
  for (std::uint32_t start = 0; start < keyed.size(); ++start) {
    const std::string_view displaced = lines[start];
    std::uint32_t place = start;
    while (keyed[place].line != start) {
      const std::uint32_t next = keyed[place].line;
      lines[place] = lines[next];
      keyed[place].line = place;
      place = next;
    }
    lines[place] = displaced;
    keyed[place].line = place;
  }
}

void SortByBytes(std::vector<std::string_view>& lines) {
  std::vector<Keyed> keyed;
  keyed.reserve(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) keyed.push_back(Key(i, lines[i].size()));
  SortByKey(lines, keyed, AsTheyAre(), std::less<>(), std::less<>());
}

// The key is the folded name with its tab. Lines whose keys differ do so within the longer name or
// at the tab after the shorter one, which decides their folded order.
void SortFolded(std::vector<std::string_view>& lines) {
  std::vector<Keyed> keyed;
  keyed.reserve(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::size_t name = NameLength(lines[i]);
    // A line without a tab may end where another has its tab. The names are then equal, and case
    // decides before the rest of the line, which keys cannot express.
    if (name == lines[i].size()) return std::sort(lines.begin(), lines.end(), CaseCompare());
    keyed.push_back(Key(i, strnlen(lines[i].data(), name + 1)));
  }
  // Where the folded names are equal, what differs first decides.
  const auto inRun = [](std::string_view a, std::string_view b) {
    return std::strcmp(a.data(), b.data()) < 0;
  };
  SortByKey(lines, keyed, FoldAscii(), CaseCompare(), inRun);
}

}  // namespace

bool CaseCompare::operator()(std::string_view a, std::string_view b) const {
  const std::size_t n = std::max(NameLength(a), NameLength(b));
  int order = strncasecmp(a.data(), b.data(), n);
  if (order == 0) order = std::strncmp(a.data(), b.data(), n);
  if (order == 0) order = std::strcmp(a.data(), b.data());
  return order < 0;
}

void SortLines(std::vector<std::string_view>& lines, std::int32_t sort) {
  if (sort == 1) SortByBytes(lines);
  if (sort == 2) SortFolded(lines);
}

}  // namespace vexltags
