// SPDX-License-Identifier: MIT
// Makes a new tags file from an existing one where few files have changed. Lines are found by
// binary search, so that the rest of the file is only copied.
#include "tree/tags_patch.h"

#include <algorithm>

#include "portable/portable_path.h"

namespace vexltags::tree {
namespace {

/// A name and a file field.
struct PatchKey {
  std::string_view name;
  std::string_view field;
};

PatchKey KeyOf(std::string_view line) {
  const std::size_t tab = std::min(line.find('\t'), line.size());
  const std::string_view after = line.substr(std::min(tab + 1, line.size()));
  return {line.substr(0, tab), after.substr(0, after.find('\t'))};
}

PatchKey KeyOf(const PatchLine& line) {
  const std::string_view text = line.text;
  return {text.substr(0, line.nameLength), text.substr(line.nameLength + 1, line.fieldLength)};
}

int Compare(const PatchKey& a, const PatchKey& b, TagOrder order) {
  const int names = CompareNames(a.name, b.name, order);
  return names != 0 ? names : CompareEnded(a.field, b.field, '\t');
}

/// The offset of the first line of `old` from `from` on that does not come before `key`.
std::size_t FirstNotBefore(std::string_view old, std::size_t from, const PatchKey& key,
                           TagOrder order) {
  std::size_t low = from;
  std::size_t high = old.size();
  while (low < high) {
    const std::size_t middle = low + (high - low) / 2;
    const std::size_t before = middle == 0 ? std::string_view::npos : old.rfind('\n', middle - 1);
    const std::size_t begin = before == std::string_view::npos ? 0 : std::max(before + 1, low);
    const std::size_t end = std::min(old.find('\n', begin), old.size() - 1) + 1;
    if (Compare(KeyOf(old.substr(begin, end - begin)), key, order) < 0) {
      low = end;
    } else {
      high = begin;
    }
  }
  return low;
}

std::size_t HeaderSize(std::string_view old) {
  std::size_t at = 0;
  while (old.substr(at).starts_with("!_TAG_")) {
    const std::size_t end = old.find('\n', at);
    if (end == std::string_view::npos) return old.size();
    at = end + 1;
  }
  return at;
}

/// What happens at an offset of the old file.
struct Change {
  std::size_t at = 0;
  std::size_t removed = 0;           ///< Bytes of a line that is left out.
  const PatchLine* added = nullptr;  ///< A line that comes before this offset.
};

}  // namespace

bool AppendPatchLines(const TaggedFile& file, const OutputStyle& style,
                      std::vector<PatchLine>& lines) {
  if (file.hasOddLines || !file.rest.empty() || !FitsInLine(file.field)) return false;
  const std::vector<TagPlace> places =
      SortTags(std::span(&file, 1), OrderOf(style), TiesOf(style), 1);
  TagFormatter formatter(style);
  for (const TagPlace& place : places) {
    TagEntry entry;
    std::size_t at = place.at;
    if (!ReadEntry(file.entries, at, entry)) return false;
    PatchLine line;
    formatter.Append(line.text, file, entry);
    line.nameLength = entry.name.size();
    line.fieldLength = file.field.size();
    const std::size_t end = line.nameLength + 1 + line.fieldLength;
    if (line.text.size() <= end || line.text.find('\n') + 1 != line.text.size() ||
        line.text[line.nameLength] != '\t' || line.text[end] != '\t') {
      return false;
    }
    lines.push_back(std::move(line));
  }
  return true;
}

bool PatchTags(std::string_view old, std::vector<PatchLine> removed, std::vector<PatchLine> added,
               const OutputStyle& style, const PatchSink& sink) {
  const TagOrder order = OrderOf(style);
  const auto less = [order](const PatchLine& a, const PatchLine& b) {
    return Compare(KeyOf(a), KeyOf(b), order) < 0;
  };
  std::stable_sort(removed.begin(), removed.end(), less);
  std::stable_sort(added.begin(), added.end(), less);
  const std::size_t header = HeaderSize(old);
  std::vector<Change> changes;
  std::size_t after = header;
  for (const PatchLine& line : removed) {
    // Lines with the same key are in the same order in the file.
    std::size_t at = std::max(after, FirstNotBefore(old, header, KeyOf(line), order));
    if (old.substr(at, line.text.size()) != line.text) return false;
    changes.push_back({at, line.text.size(), nullptr});
    after = at + line.text.size();
  }
  for (const PatchLine& line : added) {
    changes.push_back({FirstNotBefore(old, header, KeyOf(line), order), 0, &line});
  }
  std::stable_sort(changes.begin(), changes.end(), [](const Change& a, const Change& b) {
    return a.at != b.at ? a.at < b.at : (a.added != nullptr) > (b.added != nullptr);
  });
  std::size_t done = 0;
  for (const Change& change : changes) {
    if (change.at < done || !sink.copy(done, change.at - done)) return false;
    if (change.added != nullptr && !sink.write(change.added->text)) return false;
    done = change.at + change.removed;
  }
  return sink.copy(done, old.size() - done);
}

}  // namespace vexltags::tree
