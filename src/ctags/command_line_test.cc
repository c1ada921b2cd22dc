// SPDX-License-Identifier: MIT
// Tests of arguments.
#include "ctags/command_line.h"

#include <gtest/gtest.h>

#include "testing/scratch.h"

namespace vexltags::ctags {
namespace {

using Arguments = std::vector<std::string>;

ParseResult Parse(Settings& settings, Arguments arguments) {
  arguments.insert(arguments.begin(), "--options=NONE");
  return CommandLine(settings).Parse(arguments);
}

Settings Parsed(const Arguments& arguments) {
  Settings settings;
  EXPECT_EQ(Parse(settings, arguments), ParseResult::kRun);
  return settings;
}

TEST(CtagsCommandLine, TakesValuesInEachForm) {
  EXPECT_EQ(Parsed({"-f", "a"}).outputPath, "a");
  EXPECT_EQ(Parsed({"-fa"}).outputPath, "a");
  EXPECT_EQ(Parsed({"-f-"}).outputPath, "-");
  EXPECT_EQ(Parsed({"-nuf", "-"}).outputPath, "-");
  EXPECT_EQ(Parsed({"-o", "a", "-o", "b"}).outputPath, "b");
  EXPECT_EQ(Parsed({"-L", "-", "-Lx"}).lists, (Arguments{"-", "x"}));
  EXPECT_EQ(Parsed({"a", "-n", "b", "--", "-u"}).paths, (Arguments{"a", "b", "-u"}));
  EXPECT_EQ(Parsed({""}).paths, Arguments{});
}

TEST(CtagsCommandLine, HasOptionsWithAndWithoutAValue) {
  EXPECT_TRUE(Parsed({"--append", "a.c"}).append);
  EXPECT_FALSE(Parsed({"-a", "--append=no"}).append);
  EXPECT_TRUE(Parsed({"--recurse"}).recurse);
  EXPECT_TRUE(Parsed({"--recurse=YES"}).recurse);
  EXPECT_FALSE(Parsed({"-R", "--recurse=off"}).recurse);
  EXPECT_EQ(Parsed({"--sort"}).order, Order::kByBytes);
  EXPECT_EQ(Parsed({"--sort=0"}).order, Order::kUnsorted);
  EXPECT_EQ(Parsed({"--tag-relative"}).tagRelative, TagRelative::kYes);
}

TEST(CtagsCommandLine, LetsTheLastFormatWin) {
  EXPECT_EQ(Parsed({"-x", "--output-format=json"}).format, Format::kJson);
  EXPECT_EQ(Parsed({"--output-format=json", "-x"}).format, Format::kXref);
  EXPECT_TRUE(Parsed({"--output-format=e-ctags"}).isExuberant);
  EXPECT_FALSE(Parsed({"--output-format=e-ctags", "--output-format=u-ctags"}).isExuberant);
}

TEST(CtagsCommandLine, SelectsKindsBeforeTheLanguageIsForced) {
  const Settings settings = Parsed({"--c++-kinds=fp", "--language-force=C++", "--c-types=+p"});
  EXPECT_EQ(settings.forced, FindLanguage("c++"));
  EXPECT_TRUE(settings.kinds[kCxx].Has("prototype"));
  EXPECT_FALSE(settings.kinds[kCxx].Has("class"));
  EXPECT_TRUE(settings.kinds[kC].Has("prototype"));
  EXPECT_TRUE(settings.kinds[kC].Has("macro"));
}

TEST(CtagsCommandLine, FailsOnValuesThatItCannotUse) {
  for (const char* argument :
       {"--sort=x", "--append=x", "--language-force=cobol", "--excmd=", "--options=", "-f", "-L",
        "--_interactive=x", "--format=3", "--maxdepth=-1"}) {
    Settings settings;
    EXPECT_EQ(Parse(settings, {argument}), ParseResult::kFailed) << argument;
  }
}

TEST(CtagsCommandLine, GoesOnAfterOptionsThatItDoesNotHave) {
  EXPECT_EQ(Parsed({"--fields-c=x", "--regex-c=/a/b/", "--odd=1", "-Zn"}).address, Address::kLine);
}

TEST(CtagsCommandLine, ReadsFilesOfOptions) {
  const testing_support::ScratchFolder scratch;
  testing_support::WriteFile(scratch.Path("one"), "# no\n\n -n \n-f\nx y\r\n--kinds-all=*");
  testing_support::WriteFile(scratch.Path("two"), "--options=" + scratch.Path("one") + "\n-f\nz\n");
  const Settings settings = Parsed({"--options=" + scratch.Path("two"), "p"});
  EXPECT_EQ(settings.address, Address::kLine);
  EXPECT_EQ(settings.outputPath, "z");
  EXPECT_EQ(settings.paths, Arguments{"p"});
  EXPECT_TRUE(settings.kinds[kC].Has("prototype"));
}

TEST(CtagsCommandLine, MapsSuffixesAndNames) {
  const Settings settings = Parsed({"--langmap=c++:+.a.b,c:(Name)", "--map-Python=.x"});
  ASSERT_EQ(settings.mappings.size(), 4U);
  EXPECT_EQ(settings.mappings[0].first, ".a");
  EXPECT_EQ(settings.mappings[1].second, FindLanguage("c++"));
  EXPECT_EQ(settings.mappings[2].first, "Name");
  EXPECT_EQ(settings.mappings[3].second, FindLanguage("python"));
  EXPECT_EQ(Parsed({"--langmap=c:.a", "--langmap=default"}).mappings.size(), 0U);
}

}  // namespace
}  // namespace vexltags::ctags
