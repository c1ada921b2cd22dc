// SPDX-License-Identifier: MIT
// Tests of adding the kinds of Swift scopes.
#include "formats/swift_scope_kinds.h"

#include <gtest/gtest.h>

#include <vector>

namespace vexltags {
namespace {

TagRecord Tag(const char* name, std::int32_t line, char kind, const char* scope) {
  TagRecord tag;
  tag.name = name;
  tag.line = line;
  tag.kind = kind;
  tag.scope = scope;
  return tag;
}

TEST(AddSwiftScopeKinds, LooksUpTheTypeOfThatName) {
  std::vector<TagRecord> tags = {
      Tag("x", 3, 'V', "Body.Part"),    Tag("Body", 1, 'c', ""),     Tag("Part", 2, 's', "Body"),
      Tag("f()", 4, 'f', "Body"),       Tag("Body", 9, 'Z', ""),     Tag("g()", 10, 'f', "Body"),
      Tag("h()", 11, 'f', "Elsewhere"), Tag("red", 5, 'e', "Color"), Tag("k()", 12, 'f', ""),
  };
  tags[7].scopeKind = "enum";
  AddSwiftScopeKinds(tags);
  const char* expected[] = {"struct", "", "class", "class", "", "extension", "scope", "enum", ""};
  for (std::size_t i = 0; i < tags.size(); ++i) EXPECT_EQ(tags[i].scopeKind, expected[i]) << i;
}

}  // namespace
}  // namespace vexltags
