// SPDX-License-Identifier: MIT
// Tests of the store of lines.
#include "output/line_store.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace vexltags {
namespace {

TEST(LineStore, NeverMovesALineOfAnyLength) {
  LineStore store;
  store.Add("first\n");
  const char* first = store.Lines()[0].data();
  const std::string large(5 << 20, 'x');
  store.Add(large);
  store.Add("");
  for (int i = 0; i < 100000; ++i) store.Add("line " + std::to_string(i));
  ASSERT_EQ(store.Lines().size(), 100003U);
  EXPECT_EQ(store.Lines()[0].data(), first);
  EXPECT_STREQ(first, "first\n");
  EXPECT_EQ(store.Lines()[1], large);
  EXPECT_EQ(store.Lines()[2], "");
  for (int i = 0; i < 100000; ++i) {
    const std::string_view line = store.Lines()[static_cast<std::size_t>(i) + 3];
    EXPECT_EQ(line, "line " + std::to_string(i));
    EXPECT_EQ(std::strlen(line.data()), line.size());
  }
}

}  // namespace
}  // namespace vexltags
