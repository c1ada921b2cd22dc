// SPDX-License-Identifier: MIT
// Tests of writing tags as JSON.
#include "formats/json.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

std::string Json(const TagRecord& tag) {
  std::string out = ">";
  AppendJson(out, tag);
  return out;
}

TEST(AppendJson, WritesAllFields) {
  TagRecord tag;
  tag.name = "width";
  tag.path = "a dir/b.h";
  tag.line = 12;
  tag.kind = 'm';
  tag.scopeKind = "class";
  tag.scope = "geo::Shape";
  tag.typeref = "struct:Size";
  tag.language = "C++";
  tag.text = "\t} width; // \"a/b\"";
  EXPECT_EQ(Json(tag),
            R"(>{"_type":"tag","name":"width","path":"a dir/b.h",)"
            R"("pattern":"/^\t} width; \\/\\/ \"a\\/b\"$/","language":"C++","line":12,)"
            R"("typeref":"struct:Size","kind":"member","scope":"geo::Shape","scopeKind":"class"})"
            "\n");
}

TEST(AppendJson, LeavesOutWhatIsNotKnown) {
  TagRecord tag;
  tag.name = "f";
  tag.path = "a.c";
  tag.line = -1;
  tag.kind = '?';
  EXPECT_EQ(Json(tag), ">{\"_type\":\"tag\",\"name\":\"f\",\"path\":\"a.c\"}\n");
}

TEST(AppendJson, StaysValidWhereTheSourceIsNot) {
  TagRecord tag;
  tag.name = "caf\xE9";
  tag.path = "\xFF.c";
  tag.line = 1;
  tag.kind = 'v';
  tag.text = "int \x01 caf\xE9;";
  EXPECT_EQ(Json(tag),
            ">{\"_type\":\"tag\",\"name\":\"caf\xEF\xBF\xBD\",\"path\":\"\xEF\xBF\xBD.c\","
            "\"pattern\":\"/^int \\u0001 caf/\",\"line\":1,\"kind\":\"variable\"}\n");
}

}  // namespace
}  // namespace vexltags
