// SPDX-License-Identifier: MIT
// Tests that lines are found as one counts them from the start.
#include "tree/line_finder.h"

#include <gtest/gtest.h>

#include <string>

#include "formats/source_lines.h"

namespace vexltags::tree {
namespace {

TEST(LineFinder, FindsTheLinesOfAnyText) {
  LineFinder finder;
  std::uint32_t seed = 3;
  for (const std::size_t size : {0U, 1U, 2U, 127U, 128U, 129U, 5000U}) {
    for (const char* start : {"", "\n", "\xEF\xBB\xBF", "a\r\n", "\r", "a\r\nb\r\nc\r"}) {
      std::string text = start;
      const std::uint32_t longest = 1U << (seed >> 28);
      while (text.size() < size) {
        seed = seed * 1664525 + 1013904223;
        text += (seed >> 16) % longest != 0 ? "x" : start[0] == 'a' ? "\r\n" : "\n";
      }
      finder.SetText(text);
      const SourceLines lines(text);
      for (int i = 0; i < 3000; ++i) {
        seed = seed * 1664525 + 1013904223;
        const auto number = static_cast<std::int32_t>(i < 1000 ? i - 1 : (seed >> 16) % 3000);
        const SourceLine expected = lines.Line(number);
        const FoundLine found = finder.Line(number);
        ASSERT_EQ(found.text, expected.text) << number;
        ASSERT_EQ(found.offset, expected.offset) << number;
      }
    }
  }
}

}  // namespace
}  // namespace vexltags::tree
