// SPDX-License-Identifier: MIT
// Changes to the tokens of a filled table, and the pass that applies them.
#include "engine/token_edits.h"

#include <algorithm>
#include <utility>

#include "engine/token_table.h"

namespace vexltags {

void TokenEdits::Clear() {
  edits.clear();
  texts.clear();
  insertions = 0;
}

void TokenEdits::AddText(std::string_view text) {
  edits.back().hasText = true;
  edits.back().start = texts.size();
  edits.back().length = static_cast<std::uint32_t>(text.size());
  texts += text;
}

namespace {

/// Of a range of more tokens than this, what is between them is removed too, to save memory.
constexpr std::uint32_t kLongRange = 1000;

template <class T>
void MoveBack(std::unique_ptr<T[]>& array, std::size_t count, std::size_t by) {
  std::copy_backward(array.get(), array.get() + count, array.get() + count + by);
}

template <class T>
void MoveForward(std::unique_ptr<T[]>& array, std::size_t from, std::size_t to, std::size_t count) {
  std::copy(array.get() + from, array.get() + from + count, array.get() + to);
}

}  // namespace

// The tokens first move back by the number of insertions. Filling the table again from the front
// then never overtakes the token that is read.
void TokenTable::Apply(const TokenEdits& edits) {
  if (edits.IsEmpty()) return;
  const std::size_t oldCount = count;
  const std::size_t shift = edits.Insertions();
  if (count + shift > room) MakeRoom(count + shift);
  if (shift > 0) {
    MoveBack(types, count, shift);
    MoveBack(starts, count, shift);
    MoveBack(ends, count, shift);
    MoveBack(lines, count, shift);
    if (keepsNeighbours) {
      MoveBack(before, count, shift);
      MoveBack(behind, count, shift);
    }
  }
  const std::vector<Replaced> oldReplaced = std::exchange(replaced, {});
  const std::string oldTexts = std::exchange(replacedTexts, {});
  const std::vector<Place> oldPlaces = std::exchange(places, {});
  const std::uint8_t hiddenAtEnd = lastHidden;
  replaced.reserve(oldReplaced.size());
  replacedTexts.reserve(oldTexts.size());
  std::vector<Stretch> removed;
  count = 0;
  gaps = 0;
  lastHidden = 0;
  position = 0;
  nextReplaced = 0;
  predictions.Reset();
  for (Partners& kind : partners) kind.known = false;

  auto edit = edits.All().begin();
  const auto lastEdit = edits.All().end();
  auto oldText = oldReplaced.begin();
  std::uint8_t hiddenBehind = 0;  // Directly after the previous token, before any change.
  const auto repeatHidden = [&](std::uint8_t last) {
    if (hiddenBehind != 0) AddHidden(hiddenBehind);
    if (last != 0) AddHidden(last);
  };
  // Moves the tokens from `first` to before `last`, which do not change, all at once.
  const auto moveRun = [&](std::size_t first, std::size_t last) {
    for (; oldText != oldReplaced.end() && oldText->index < last; ++oldText) {
      replaced.push_back({static_cast<std::uint32_t>(count + oldText->index - first),
                          oldText->length, replacedTexts.size()});
      replacedTexts.append(oldTexts, oldText->start, oldText->length + std::size_t{1});
    }
    if (keepsPlaces) {
      const auto begin = oldPlaces.begin();
      places.insert(places.end(), begin + static_cast<std::ptrdiff_t>(first),
                    begin + static_cast<std::ptrdiff_t>(last));
    }
    // For a few tokens, four calls of memmove take longer than a loop.
    constexpr std::size_t kShortRun = 16;
    if (first + shift != count && last - first < kShortRun) {
      for (std::size_t from = first + shift, to = count; from < last + shift; ++from, ++to) {
        types[to] = types[from];
        starts[to] = starts[from];
        ends[to] = ends[from];
        lines[to] = lines[from];
      }
    } else if (first + shift != count) {
      MoveForward(types, first + shift, count, last - first);
      MoveForward(starts, first + shift, count, last - first);
      MoveForward(ends, first + shift, count, last - first);
      MoveForward(lines, first + shift, count, last - first);
    }
    count += last - first;
  };
  std::size_t removedTo = 0;  // One past the last removed token so far.
  unsigned removedType = 0;
  for (std::size_t i = 0; i <= oldCount; ++i) {
    const std::size_t unchangedTo = edit != lastEdit ? edit->index : oldCount;
    if (!keepsNeighbours && i < unchangedTo) {
      moveRun(i, unchangedTo);
      i = unchangedTo;
    }
    const std::size_t from = i + shift;
    const bool isToken = i < oldCount;
    if (keepsNeighbours) repeatHidden(isToken ? before[from] : hiddenAtEnd);
    // Of the next token, or else of the end of the last one.
    const unsigned char* place = data;
    if (isToken) {
      place += starts[from];
    } else if (oldCount > 0) {
      place += ends[from - 1];
    }
    for (; edit != lastEdit && edit->index == i && edit->kind == TokenEdits::Kind::Insert; ++edit) {
      Add(edit->type, place, place, edit->line, edits.Text(*edit));
      // That of the next token, or else of the last one.
      if (keepsPlaces)
        places.push_back(oldCount > 0 ? oldPlaces[std::min(i, oldCount - 1)] : Place{});
    }
    if (!isToken) break;
    hiddenBehind = keepsNeighbours ? behind[from] : 0;
    auto type = static_cast<unsigned>(types[from]);
    const unsigned char* const end = data + ends[from];
    std::string_view text;
    bool hasText = oldText != oldReplaced.end() && oldText->index == i;
    if (hasText) {
      text = std::string_view(oldTexts).substr(oldText->start, oldText->length);
      ++oldText;
    }
    if (edit != lastEdit && edit->index == i) {
      const TokenEdits::Edit& change = *edit++;
      if (change.kind == TokenEdits::Kind::Remove) {
        removedTo = i + change.count;
        removedType = change.type;
        if (change.count > kLongRange) {
          removed.push_back({starts[from], ends[from + change.count - 1]});
        } else {
          for (std::size_t j = from; j < from + change.count; ++j) {
            removed.push_back({starts[j], ends[j]});
          }
        }
      } else if (change.kind == TokenEdits::Kind::Hide) {
        AddHidden(change.type);
        continue;
      } else {
        type = change.type;
        if (change.hasText) {
          hasText = true;
          text = edits.Text(change);
        }
      }
    }
    if (i < removedTo) {
      AddHidden(removedType);
      if (keepsNeighbours) continue;
      // Nothing but their end matters of the others.
      while (oldText != oldReplaced.end() && oldText->index < removedTo) ++oldText;
      i = removedTo - 1;
      continue;
    }
    if (keepsPlaces) places.push_back(oldPlaces[i]);
    if (hasText) {
      Add(type, place, end, lines[from], text);
    } else {
      Add(type, place, end, lines[from]);
    }
  }
  if (!removed.empty()) {
    std::vector<Stretch> merged;
    merged.reserve(dropped.size() + removed.size());
    std::merge(dropped.begin(), dropped.end(), removed.begin(), removed.end(),
               std::back_inserter(merged),
               [](const Stretch& a, const Stretch& b) { return a.start < b.start; });
    dropped = std::move(merged);
  }
  Finish(endLine);
}

}  // namespace vexltags
