// SPDX-License-Identifier: MIT
// Tests of the character classes.
#include "base/character_class.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace vexltags {
namespace {

/// The bytes for which `contains` is true, in order.
template <class Contains>
std::string Bytes(Contains contains) {
  std::string bytes;
  for (int c = 0; c < 256; ++c) {
    if (contains(c)) bytes += static_cast<char>(c);
  }
  return bytes;
}

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz";

TEST(CharacterClass, HoldsExactlyItsBytes) {
  EXPECT_EQ(Bytes([](int c) { return kLetters[static_cast<std::size_t>(c)]; }), kAlphabet);
  EXPECT_EQ(Bytes([](int c) { return kLettersAndDigits[static_cast<std::size_t>(c)]; }),
            "0123456789" + std::string(kAlphabet));
  EXPECT_EQ(Bytes(IsDigit), "0123456789");
  EXPECT_EQ(Bytes(IsHexDigit), "0123456789ABCDEFabcdef");
  EXPECT_EQ(Bytes(IsBlank), "\t ");
  EXPECT_EQ(Bytes(IsLineEnd), "\n\r");
}

TEST(EndOfWord, StopsAfterTheLastLetterOrDigit) {
  const auto length = [](std::string_view text) {
    const auto* begin = reinterpret_cast<const unsigned char*>(text.data());
    return EndOfWord(begin, begin + text.size()) - begin;
  };
  EXPECT_EQ(length("a_1-b"), 3);
  EXPECT_EQ(length("abc"), 3);
  EXPECT_EQ(length("\xe4"), 0);
  EXPECT_EQ(length(""), 0);
}

}  // namespace
}  // namespace vexltags
