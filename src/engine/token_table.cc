// SPDX-License-Identifier: MIT
// The tokens of one file in flat arrays: neighbours, texts and the runtime's token objects.
#include "engine/token_table.h"

#include <algorithm>
#include <cstring>

namespace vexltags {
namespace {

constexpr std::size_t kLeastRoom = 1024;
constexpr std::size_t kLargestGuess = std::size_t{1} << 24;

template <class T>
void Enlarge(std::unique_ptr<T[]>& array, std::size_t used, std::size_t size) {
  auto larger = std::make_unique_for_overwrite<T[]>(size);
  std::copy_n(array.get(), used, larger.get());
  array = std::move(larger);
}

}  // namespace

TokenTable::TokenTable(pANTLR3_INPUT_STREAM stream) : input(stream) {
  std::memset(&endOfFile, 0, sizeof endOfFile);
  antlr3SetTokenAPI(&endOfFile);
  endOfFile.type = ANTLR3_TOKEN_EOF;
  endOfFile.factoryMade = ANTLR3_TRUE;
  endOfFile.input = input;
  Reset();
}

void TokenTable::Reset() {
  data = static_cast<const unsigned char*>(input->data);
  count = 0;
  // One allocation, as a rule: growing step by step needs twice the memory in the meantime. What is
  // not used of it never becomes memory.
  const std::size_t guess = std::min<std::size_t>(input->sizeBuf / 4 * 3UL, kLargestGuess);
  if (guess >= room) MakeRoom(std::max(guess, kLeastRoom));
  dropped.clear();
  replaced.clear();
  replacedTexts.clear();
  nextReplaced = 0;
  places.clear();
  allTokens = 0;
  predictions.Reset();
  for (Partners& kind : partners) kind.known = false;
  position = 0;
  lastHidden = 0;
  gaps = 0;
  nextMade = 0;
  endOfFile.strFactory = input->strFactory;
}

void TokenTable::MakeRoom(std::size_t tokens) {
  Enlarge(types, count, tokens + kEndMarks);
  Enlarge(starts, count, tokens);
  Enlarge(ends, count, tokens);
  Enlarge(lines, count, tokens);
  if (keepsNeighbours) {
    Enlarge(before, count, tokens);
    Enlarge(behind, count, tokens);
    Enlarge(gapsBefore, count, tokens);
  }
  room = tokens;
}

void TokenTable::Add(unsigned type, const unsigned char* start, const unsigned char* end,
                     unsigned line, std::string_view text) {
  replaced.push_back({static_cast<std::uint32_t>(count), static_cast<std::uint32_t>(text.size()),
                      replacedTexts.size()});
  replacedTexts += text;
  replacedTexts += '\0';
  Add(type, start, end, line);
}

void TokenTable::AddDropped(const unsigned char* start, const unsigned char* end) {
  if (start >= end) return;
  const std::uint32_t from = Offset(start);
  // A token without characters may stand between.
  const bool touches = !dropped.empty() && dropped.back().end == from &&
                       (count == 0 || ends[count - 1] <= dropped.back().start);
  if (touches) {
    dropped.back().end = Offset(end);
  } else {
    dropped.push_back({from, Offset(end)});
  }
}

void TokenTable::Finish(unsigned line) {
  std::fill_n(&types[count], kEndMarks, static_cast<std::int16_t>(ANTLR3_TOKEN_EOF));
  endLine = line;
  endOfFile.line = line;
}

pANTLR3_COMMON_TOKEN TokenTable::LT(ANTLR3_INT32 k) {
  if (k < 0) {
    const auto behindBy = static_cast<std::size_t>(-k);
    return behindBy <= position ? Token(position - behindBy) : nullptr;
  }
  return Token(position + static_cast<std::size_t>(k) - 1);
}

pANTLR3_COMMON_TOKEN TokenTable::Token(std::size_t index) {
  if (index < count) return Make(index);
  endOfFile.start = endOfFile.stop = static_cast<ANTLR3_MARKER>(position);
  return &endOfFile;
}

pANTLR3_COMMON_TOKEN TokenTable::Make(std::size_t index) {
  // Callers hold addresses, so the ring never moves.
  if (nextMade == kMadeTokens) nextMade = 0;
  if (nextMade == made.size()) {
    made.reserve(kMadeTokens);
    made.push_back(endOfFile);
  }
  ANTLR3_COMMON_TOKEN& token = made[nextMade++];
  token.strFactory = input->strFactory;
  token.type = static_cast<ANTLR3_UINT32>(types[index]);
  token.line = lines[index];
  token.index = static_cast<ANTLR3_MARKER>(index);
  if (keepsPlaces) {
    token.charPosition = places[index].column;
    token.index = static_cast<ANTLR3_MARKER>(places[index].index);
  }
  token.start = reinterpret_cast<ANTLR3_MARKER>(data + starts[index]);
  token.stop = reinterpret_cast<ANTLR3_MARKER>(data + ends[index]) - 1;
  token.textState = ANTLR3_TEXT_NONE;
  if (!replaced.empty()) {
    if (const char* text = ReplacedText(index)) {
      token.textState = ANTLR3_TEXT_CHARP;
      token.tokText.chars = reinterpret_cast<pANTLR3_UCHAR>(const_cast<char*>(text));
    }
  }
  return &token;
}

pANTLR3_COMMON_TOKEN TokenTable::MadeUp(unsigned type, const char* text) {
  if (count == 0) return nullptr;
  const pANTLR3_COMMON_TOKEN token = Make(std::min(position, count - 1));
  token->type = type;
  token->start = token->stop = 0;
  token->textState = ANTLR3_TEXT_CHARP;
  token->tokText.chars = reinterpret_cast<pANTLR3_UCHAR>(const_cast<char*>(text));
  return token;
}

const char* TokenTable::ReplacedText(std::size_t index) {
  // Questions come mostly in source order.
  while (nextReplaced < replaced.size() && replaced[nextReplaced].index < index) ++nextReplaced;
  while (nextReplaced > 0 && replaced[nextReplaced - 1].index >= index) --nextReplaced;
  const bool isReplaced = nextReplaced < replaced.size() && replaced[nextReplaced].index == index;
  return isReplaced ? &replacedTexts[replaced[nextReplaced].start] : nullptr;
}

std::string_view TokenTable::TextAt(std::size_t index) {
  if (!replaced.empty()) {
    if (const char* text = ReplacedText(index)) return {text, replaced[nextReplaced].length};
  }
  return {reinterpret_cast<const char*>(data + starts[index]), ends[index] - starts[index]};
}

std::size_t TokenTable::Partner(unsigned open, unsigned close) {
  auto kind = std::find_if(partners.begin(), partners.end(),
                           [open](const Partners& known) { return known.open == open; });
  if (kind == partners.end()) kind = partners.insert(kind, Partners{open, false, {}});
  if (!kind->known) FindBrackets(*kind, close);
  const auto found = std::lower_bound(
      kind->brackets.begin(), kind->brackets.end(), position,
      [](const Bracket& bracket, std::size_t wanted) { return bracket.open < wanted; });
  return found != kind->brackets.end() && found->open == position ? found->close : kNoPartner;
}

void TokenTable::FindBrackets(Partners& kind, unsigned close) const {
  kind.known = true;
  kind.brackets.clear();
  std::vector<std::uint32_t> unclosed;  // Numbers in `brackets`.
  const auto opener = static_cast<std::int16_t>(kind.open);
  const auto closer = static_cast<std::int16_t>(close);
  for (std::uint32_t i = 0; i < count; ++i) {
    if (types[i] == opener) {
      unclosed.push_back(static_cast<std::uint32_t>(kind.brackets.size()));
      kind.brackets.push_back({i, 0});
    } else if (types[i] == closer && !unclosed.empty()) {
      kind.brackets[unclosed.back()].close = i;
      unclosed.pop_back();
    }
  }
  std::erase_if(kind.brackets, [](const Bracket& bracket) { return bracket.close == 0; });
}

std::string TokenTable::Text(std::size_t first, std::size_t last) const {
  std::string result;
  std::uint32_t place = starts[first];
  const std::uint32_t end = ends[last];
  auto gap = std::lower_bound(
      dropped.begin(), dropped.end(), place,
      [](const Stretch& stretch, std::uint32_t wanted) { return stretch.start < wanted; });
  auto text = std::lower_bound(
      replaced.begin(), replaced.end(), first,
      [](const Replaced& entry, std::size_t wanted) { return entry.index < wanted; });
  const auto append = [&](std::uint32_t upTo) {
    result.append(reinterpret_cast<const char*>(data + place), upTo - place);
  };
  while (place < end) {
    const bool hasGap = gap != dropped.end() && gap->start < end;
    const bool hasText = text != replaced.end() && text->index <= last;
    if (hasText && (!hasGap || starts[text->index] <= gap->start)) {
      append(starts[text->index]);
      result.append(replacedTexts, text->start, text->length);
      place = ends[text->index];
      ++text;
    } else if (hasGap) {
      append(gap->start);
      place = gap->end;
      ++gap;
    } else {
      append(end);
      place = end;
    }
  }
  for (; text != replaced.end() && text->index <= last; ++text) {
    result.append(replacedTexts, text->start, text->length);
  }
  return result;
}

unsigned TokenTable::RawType(int offset) const {
  constexpr auto kEnd = static_cast<unsigned>(ANTLR3_TOKEN_EOF);
  if (offset < 0) {
    // Only the direct neighbour is kept.
    if (offset < -1 || position >= count) {
      if (offset == -1 && position >= count && count > 0) {
        return behind[count - 1] != 0 ? lastHidden : static_cast<unsigned>(types[count - 1]);
      }
      return kEnd;
    }
    if (before[position] != 0) return before[position];
    return position == 0 ? kEnd : static_cast<unsigned>(types[position - 1]);
  }
  if (offset == 0) return position < count ? static_cast<unsigned>(types[position]) : kEnd;
  const std::size_t index = position + static_cast<std::size_t>(offset);
  if (position >= count || index > count) return kEnd;
  if (gapsBefore[index - 1] != gapsBefore[position]) return kEnd;
  if (behind[index - 1] != 0) return behind[index - 1];
  return index < count ? static_cast<unsigned>(types[index]) : kEnd;
}

}  // namespace vexltags
