// SPDX-License-Identifier: MIT
// Classifies a word of Swift, by a hash table made at compile time.
#include "swift/swift_words.h"

#include <iterator>

#include "base/word_table.h"
#include "vocabulary/swift_tokens.h"

namespace vexltags {
namespace {

constexpr auto kWords = [] {
  WordTable<std::size(kSwiftLiterals) + 5> table(kSwiftLiterals);
  table.Add("any", kSwiftAny);
  table.Add("E", kSwiftFloatingPointE);
  table.Add("e", kSwiftFloatingPointE);
  table.Add("P", kSwiftFloatingPointP);
  table.Add("p", kSwiftFloatingPointP);
  return table;
}();

}  // namespace

unsigned ClassifySwiftWord(std::string_view word) {
  return kWords.Find(reinterpret_cast<const unsigned char*>(word.data()), word.size(),
                     kSwiftIdentifier);
}

unsigned ClassifySwiftHashWord(std::string_view word) {
  for (const Keyword& literal : kSwiftLiterals) {
    if (literal.text.front() == '#' && literal.text.substr(1) == word) return literal.type;
  }
  return 0;
}

}  // namespace vexltags
