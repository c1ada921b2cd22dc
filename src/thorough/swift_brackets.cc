// SPDX-License-Identifier: MIT
// Finds the brackets of a Swift file that belong together.
#include "thorough/swift_declarations.h"

#include <algorithm>

namespace vexltags::thorough {
namespace {

unsigned OpenerOf(unsigned type) {
  switch (type) {
    case kSwiftRCurly:
      return kSwiftLCurly;
    case kSwiftRParen:
      return kSwiftLParen;
    case kSwiftRSquare:
      return kSwiftLSquare;
    default:
      return 0;
  }
}

bool IsOpener(unsigned type) {
  return type == kSwiftLCurly || type == kSwiftLParen || type == kSwiftLSquare;
}

}  // namespace

std::size_t SwiftDeclarations::Column(std::size_t index) const {
  const std::size_t offset = table.OffsetAt(index);
  const std::size_t lineEnd = offset == 0 ? std::string_view::npos : source.rfind('\n', offset - 1);
  return lineEnd == std::string_view::npos ? offset : offset - lineEnd - 1;
}

std::vector<std::uint32_t> SwiftDeclarations::CountClosings() const {
  std::vector<std::uint32_t> closings(count + 1);
  for (std::size_t i = count; i-- > 0;) {
    const unsigned type = table.TypeAt(i);
    closings[i] = closings[i + 1];
    if (type == kSwiftRCurly) ++closings[i];
    if (type == kSwiftLCurly && closings[i] > 0) --closings[i];
  }
  return closings;
}

bool SwiftDeclarations::IsIndented(std::size_t unclosed) const {
  std::size_t indented = 0;
  std::size_t others = 0;
  std::size_t line = 0;  // The column where the current line begins.
  for (std::size_t i = 0; i + 1 < count; ++i) {
    if (BeginsLine(i)) line = Column(i);
    if (table.TypeAt(i) != kSwiftLCurly || !BeginsLine(i + 1)) continue;
    if (table.TypeAt(i + 1) == kSwiftRCurly) continue;
    ++(Column(i + 1) > line ? indented : others);
  }
  // What follows a curly that stays open looks like a block that is not indented.
  others -= std::min(others, unclosed);
  constexpr std::size_t kMostOthers = 9;
  return indented > others * kMostOthers;
}

void SwiftDeclarations::FindPartners() {
  partners.assign(count, 0);
  struct Opener {
    std::uint32_t index;
    std::size_t column;  ///< Where its line begins.
  };
  std::vector<Opener> open;
  std::size_t openCurlies = 0;
  std::size_t unclosed = 0;
  for (std::uint32_t i = 0; i < count; ++i) {
    const unsigned type = table.TypeAt(i);
    if (type == kSwiftLCurly) ++unclosed;
    if (type == kSwiftRCurly && unclosed > 0) --unclosed;
  }
  std::vector<std::uint32_t> closings;
  if (unclosed > 0 && IsIndented(unclosed)) closings = CountClosings();
  std::size_t column = 0;
  const auto popTo = [&](unsigned type) {
    while (table.TypeAt(open.back().index) != type) open.pop_back();
  };
  for (std::uint32_t i = 0; i < count; ++i) {
    const unsigned type = table.TypeAt(i);
    if (!closings.empty() && BeginsLine(i)) {
      column = Column(i);
      // A declaration within curlies is farther to the right than the line that opens them. Where
      // as many closings follow as there are open curlies, none of them stays open.
      while (openCurlies > closings[i] && FindKeyword(i) != kNone) {
        popTo(kSwiftLCurly);
        const Opener curly = open.back();
        if (column > curly.column) break;
        open.pop_back();
        partners[curly.index] = i - 1;
        unclosedAt.push_back(curly.index);
        --openCurlies;
      }
    }
    if (IsOpener(type)) {
      open.push_back({i, column});
      if (type == kSwiftLCurly) ++openCurlies;
      continue;
    }
    const unsigned opener = OpenerOf(type);
    if (opener == 0) continue;
    if (opener == kSwiftLCurly) {
      if (openCurlies == 0) continue;
      --openCurlies;
      popTo(opener);
    }
    if (open.empty() || table.TypeAt(open.back().index) != opener) continue;
    partners[open.back().index] = i;
    open.pop_back();
  }
  std::sort(unclosedAt.begin(), unclosedAt.end());
}

}  // namespace vexltags::thorough
