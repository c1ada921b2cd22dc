// SPDX-License-Identifier: MIT
// Tests of the words of Swift.
#include "swift/swift_words.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "swift/token_types.h"

namespace vexltags {
namespace {

TEST(ClassifySwiftWord, KnowsEachKeyword) {
  const std::map<std::string, unsigned> keywords = {
      {"func", 68},
      {"class", 69},
      {"convenience", 70},
      {"dynamic", 71},
      {"final", 72},
      {"infix", 73},
      {"lazy", 74},
      {"optional", 75},
      {"override", 76},
      {"postfix", 77},
      {"prefix", 78},
      {"required", 79},
      {"static", 80},
      {"unowned", 81},
      {"safe", 82},
      {"unsafe", 83},
      {"weak", 84},
      {"mutating", 85},
      {"nonisolated", 86},
      {"nonmutating", 87},
      {"async", 88},
      {"throws", 89},
      {"rethrows", 90},
      {"where", 92},
      {"init", 93},
      {"deinit", 94},
      {"subscript", 95},
      {"await", 96},
      {"try", 97},
      {"self", 98},
      {"super", 99},
      {"red", 108},
      {"green", 109},
      {"blue", 110},
      {"alpha", 111},
      {"resourceName", 113},
      {"nil", 115},
      {"inout", 117},
      {"let", 119},
      {"var", 120},
      {"typealias", 121},
      {"actor", 122},
      {"struct", 123},
      {"protocol", 124},
      {"extension", 125},
      {"private", 126},
      {"fileprivate", 127},
      {"internal", 128},
      {"public", 129},
      {"open", 130},
      {"set", 131},
      {"indirect", 132},
      {"enum", 133},
      {"case", 134},
      {"import", 135},
      {"Any", 136},
      {"Self", 137},
      {"Type", 138},
      {"Protocol", 139},
      {"some", 140},
      {"true", 141},
      {"false", 142},
      {"willSet", 143},
      {"of", 144},
      {"any", 32},
      {"e", 46},
      {"E", 46},
      {"p", 47},
      {"P", 47},
  };
  for (const auto& [word, type] : keywords) EXPECT_EQ(ClassifySwiftWord(word), type) << word;
}

TEST(ClassifySwiftWord, TakesAllElseForNames) {
  for (const char* word : {"funcs", "fun", "Func", "_", "x", "anyone", "ee", "e1", "SELF", "file",
                           "selector", "didSet", "get", "as", "is", "in", "return"}) {
    EXPECT_EQ(ClassifySwiftWord(word), kSwiftIdentifier) << word;
  }
}

TEST(ClassifySwiftHashWord, KnowsEachLiteral) {
  const std::map<std::string, unsigned> literals = {
      {"filePath", 100},    {"fileID", 101},       {"file", 102},      {"line", 103},
      {"column", 104},      {"function", 105},     {"dsohandle", 106}, {"colorLiteral", 107},
      {"fileLiteral", 112}, {"imageLiteral", 114}, {"available", 116}, {"selector", 118},
  };
  for (const auto& [word, type] : literals) EXPECT_EQ(ClassifySwiftHashWord(word), type) << word;
}

TEST(ClassifySwiftHashWord, KnowsNoOther) {
  for (const char* word : {"", "files", "File", "if", "func", "red", "sourceLocation"}) {
    EXPECT_EQ(ClassifySwiftHashWord(word), 0U) << word;
  }
}

}  // namespace
}  // namespace vexltags
