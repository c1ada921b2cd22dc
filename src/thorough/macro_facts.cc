// SPDX-License-Identifier: MIT
// The part of a text from which a macro table learns.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "base/character_class.h"
#include "thorough/macro_table.h"

namespace vexltags::thorough {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

void AppendNumber(std::string& facts, std::size_t number) {
  const auto small = static_cast<std::uint32_t>(number);
  facts.append(reinterpret_cast<const char*>(&small), sizeof small);
}

/// Takes a number from the front of `facts`; 0 where there is none.
std::uint32_t TakeNumber(std::string_view& facts) {
  std::uint32_t number = 0;
  if (facts.size() < sizeof number) {
    facts = {};
    return 0;
  }
  std::memcpy(&number, facts.data(), sizeof number);
  facts.remove_prefix(sizeof number);
  return number;
}

/// A part of a text, and its offset there.
struct Part {
  std::size_t begin;
  std::string_view text;
};

/// Takes a part from the front of `facts`.
Part TakePart(std::string_view& facts) {
  const std::size_t begin = TakeNumber(facts);
  const std::size_t size = TakeNumber(facts);
  const Part part = {begin, facts.substr(0, size)};
  facts.remove_prefix(part.text.size());
  return part;
}

/// Appends parts of a text, in order; what overlaps is appended once.
class Parts {
 public:
  Parts(std::string_view text, std::string& facts) : text(text), facts(facts) {}
  ~Parts() { Flush(); }
  Parts(const Parts&) = delete;
  Parts& operator=(const Parts&) = delete;

  void Add(std::size_t from, std::size_t to) {
    if (from <= end && begin < end) {
      end = std::max(end, to);
      return;
    }
    Flush();
    begin = from;
    end = to;
  }

 private:
  void Flush() {
    if (begin == end) return;
    AppendNumber(facts, begin);
    AppendNumber(facts, end - begin);
    facts += text.substr(begin, end - begin);
  }

  std::string_view text;
  std::string& facts;
  std::size_t begin = 0, end = 0;
};

}  // namespace

std::size_t MacroTable::EndOfDirective(std::string_view text, std::size_t at) {
  if (!text.substr(at).starts_with("define")) return EndOfLine(text, at);
  std::size_t name = std::min(text.find_first_not_of(" \t", at + 6), text.size());
  while (name < text.size() && kLettersAndDigits[static_cast<unsigned char>(text[name])]) ++name;
  return EndOfDefinition(text, name);
}

std::string MacroTable::Facts(std::string_view text) {
  std::string facts;
  std::size_t directive = NextDirective(text, 0);
  if (directive == kNone) return facts;
  AppendNumber(facts, text.size());
  Parts parts(text, facts);
  std::size_t hash = text.rfind('#', directive - 1);
  std::size_t pastDirective = 0;  // One past the last directive that was added.
  const auto addDirectives = [&](std::size_t before) {
    while (hash < before) {
      pastDirective = EndOfDirective(text, directive);
      parts.Add(hash, pastDirective);
      directive = NextDirective(text, directive);
      hash = directive == kNone ? kNone : text.rfind('#', directive - 1);
    }
  };
  // Of comments, only those that hide directives and those that begin in one matter.
  std::size_t past = 0;
  while (hash != kNone || past < pastDirective) {
    const auto [open, close] = NextComment(text, past, text.size());
    if (open == kNone || close == kNone) break;
    addDirectives(open);
    const bool isInDirective = open < pastDirective;
    const bool hidesDirective = hash < close;
    if (isInDirective || hidesDirective) parts.Add(open, open + 2);
    addDirectives(close);
    if (isInDirective || hidesDirective) parts.Add(close - 2, close);
    past = close;
  }
  addDirectives(kNone);
  return facts;
}

void MacroTable::JoinFacts(std::string_view facts) {
  TakeNumber(facts);
  joined.clear();
  pieces.clear();
  while (!facts.empty()) {
    const Part part = TakePart(facts);
    // The newline takes the place of what is missing, so that what follows begins a line.
    if (!joined.empty()) joined += '\n';
    const std::size_t moved = part.begin - joined.size();
    joined += part.text;
    pieces.push_back({joined.size(), moved});
  }
  if (pieces.empty()) pieces.push_back({0, 0});
}

bool MacroTable::HaveSameDirectives(std::string_view facts, std::string_view others) {
  TakeNumber(facts);
  TakeNumber(others);
  while (!facts.empty() && !others.empty()) {
    if (TakePart(facts).text != TakePart(others).text) return false;
  }
  return facts.empty() && others.empty();
}

}  // namespace vexltags::thorough
