// SPDX-License-Identifier: MIT
// Tells what a word of Swift is, by a small hash table made at compile time.
#include "swift/swift_words.h"

#include <array>
#include <cstdint>

#include "swift/token_types.h"

namespace vexltags {
namespace {

constexpr unsigned kFirstLiteral = 68;

/// The literals in the order of the vocabulary, from kFirstLiteral on.
constexpr std::string_view kLiterals[] = {
    "func",         "class",        "convenience",   "dynamic",
    "final",        "infix",        "lazy",          "optional",
    "override",     "postfix",      "prefix",        "required",
    "static",       "unowned",      "safe",          "unsafe",
    "weak",         "mutating",     "nonisolated",   "nonmutating",
    "async",        "throws",       "rethrows",      "->",
    "where",        "init",         "deinit",        "subscript",
    "await",        "try",          "self",          "super",
    "#filePath",    "#fileID",      "#file",         "#line",
    "#column",      "#function",    "#dsohandle",    "#colorLiteral",
    "red",          "green",        "blue",          "alpha",
    "#fileLiteral", "resourceName", "#imageLiteral", "nil",
    "#available",   "inout",        "#selector",     "let",
    "var",          "typealias",    "actor",         "struct",
    "protocol",     "extension",    "private",       "fileprivate",
    "internal",     "public",       "open",          "set",
    "indirect",     "enum",         "case",          "import",
    "Any",          "Self",         "Type",          "Protocol",
    "some",         "true",         "false",         "willSet",
    "of",
};

struct Word {
  std::string_view text;
  std::uint8_t type = 0;
};

constexpr std::size_t kPlaces = 512;

constexpr std::size_t Place(std::string_view text) {
  const auto first = static_cast<unsigned char>(text.front());
  const auto last = static_cast<unsigned char>(text.back());
  return (first * 17U + last * 5U + text[text.size() / 2] * 3U + text.size() * 31U) % kPlaces;
}

using Table = std::array<Word, kPlaces>;

constexpr void Enter(Table& table, std::string_view text, unsigned type) {
  std::size_t place = Place(text);
  while (!table[place].text.empty()) place = (place + 1) % kPlaces;
  table[place] = {text, static_cast<std::uint8_t>(type)};
}

constexpr Table MakeWords() {
  Table table{};
  unsigned type = kFirstLiteral;
  for (const std::string_view literal : kLiterals) {
    if (literal.front() != '#' && literal.front() != '-') Enter(table, literal, type);
    ++type;
  }
  Enter(table, "any", kSwiftAny);
  for (const std::string_view letter : {"E", "e"}) Enter(table, letter, kSwiftFloatingPointE);
  for (const std::string_view letter : {"P", "p"}) Enter(table, letter, kSwiftFloatingPointP);
  return table;
}
constexpr Table kWords = MakeWords();

}  // namespace

unsigned ClassifySwiftWord(std::string_view word) {
  for (std::size_t place = Place(word); !kWords[place].text.empty();
       place = (place + 1) % kPlaces) {
    if (kWords[place].text == word) return kWords[place].type;
  }
  return kSwiftIdentifier;
}

unsigned ClassifySwiftHashWord(std::string_view word) {
  unsigned type = kFirstLiteral;
  for (const std::string_view literal : kLiterals) {
    if (literal.front() == '#' && literal.substr(1) == word) return type;
    ++type;
  }
  return 0;
}

}  // namespace vexltags
