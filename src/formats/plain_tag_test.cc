// SPDX-License-Identifier: MIT
// Tests that plain tags are written as all others are.
#include "formats/plain_tag.h"

#include <gtest/gtest.h>

#include <string>

#include "formats/tag_record.h"

namespace vexltags {
namespace {

constexpr Address kAddresses[] = {Address::kCombined, Address::kLine, Address::kPattern};

std::string Whole(std::string_view rest, std::string_view text, Address address) {
  const std::string line = "name\t-\t" + std::string(rest);
  TagRecord tag;
  EXPECT_TRUE(ReadRawTag(line, tag)) << rest;
  tag.path = "a/b.c";
  tag.text = text;
  std::string out = "before\n";
  EXPECT_TRUE(AppendTagsLine(out, tag, address));
  return out;
}

std::string Plain(std::string_view rest, std::string_view text, Address address) {
  PlainTag tag;
  EXPECT_TRUE(ReadPlainTag(rest, tag)) << rest;
  tag.name = "name";
  tag.path = "a/b.c";
  tag.text = text;
  std::string out = "before\n";
  AppendPlainTag(out, tag, address);
  return out;
}

TEST(PlainTag, IsWrittenAsAnyTag) {
  EXPECT_EQ(Plain("12;\"\tm\tclass:C\ttyperef:struct:S", "int a;", Address::kCombined),
            "before\nname\ta/b.c\t11;/^int a;$/;\"\tm\tline:12\tclass:C\ttyperef:struct:S\n");
  const std::string multi = std::string(kPatternLimit - 1, 'x') + "\xC3\xA9" + "yz";
  for (const std::string_view rest :
       {"1;\"\tf", "20;\"\tm\tclass:A::B", "999999999;\"\tt\ttyperef:x",
        "7;\"\tm\tstruct:S\ttyperef:enum:E"}) {
    for (const std::string& text :
         {std::string("int a;"), std::string("a / b \\ c $ d $"), std::string("$"),
          std::string(kPatternLimit, 'x'), std::string(kPatternLimit + 1, 'x'),
          std::string(kPatternLimit - 1, 'x') + "/y", std::string(160, '/'), std::string(160, '\\'),
          multi}) {
      for (const Address address : kAddresses) {
        EXPECT_EQ(Plain(rest, text, address), Whole(rest, text, address)) << rest << ' ' << text;
      }
    }
  }
}

TEST(PlainTag, OtherFormsAreNotPlain) {
  PlainTag tag;
  for (const std::string_view rest :
       {"", "12", "12;\"", "12;\"\t", "0;\"\tf", "-1;\"\tf", "12;\"\tfn", "12;\"\t\tf",
        "12;\"\tf\t", "12;\"\tm\tclass:", "12;\"\tm\tscope", "12;\"\tm\ttyperef:",
        "12;\"\tm\ttyperef:x\tclass:C", "12;\"\tm\tclass:C\tstruct:D", "12;\"\tm\tclass:C\t",
        "12;\"\tm\tclass:C\ttyperef:x\ty", "9999999999;\"\tf", "12 ;\"\tf"}) {
    EXPECT_FALSE(ReadPlainTag(rest, tag)) << rest;
  }
}

}  // namespace
}  // namespace vexltags
