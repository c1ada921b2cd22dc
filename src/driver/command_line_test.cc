// SPDX-License-Identifier: MIT
// Tests of the command line: every option, every error, and the order of comparison.
#include "driver/command_line.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace vexltags {
namespace {

using Strings = std::vector<std::string>;

/// The result of a scan.
struct Scan {
  explicit Scan(const Strings& arguments) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    result = ScanCommandLine(arguments, line);
    err = testing::internal::GetCapturedStderr();
    out = testing::internal::GetCapturedStdout();
  }

  CommandLine line;
  ScanResult result;
  std::string out;
  std::string err;
};

/// Scans `arguments`, expecting success without a message.
CommandLine Accepted(const Strings& arguments) {
  const Scan scan(arguments);
  EXPECT_EQ(scan.result, ScanResult::kRun) << testing::PrintToString(arguments);
  EXPECT_EQ(scan.out, "");
  EXPECT_EQ(scan.err, "");
  return scan.line;
}

TEST(MatchArg, MatchesAPrefix) {
  const struct {
    const char* arg;
    const char* option;
    bool expected;
  } cases[] = {
      {"-h", "-h", true},      {"-hello", "-h", true},     {"--sorted=yes", "--sort", true},
      {"-h", "--help", false}, {"--hel", "--help", false}, {"x-h", "-h", false},
      {"-H", "-h", false},     {"anything", "", true},     {"", "", true},
      {"", "-h", false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(MatchArg(c.arg, c.option), c.expected) << c.arg << " | " << c.option;
    bool flag = false;
    EXPECT_EQ(MatchArg(c.arg, c.option, flag), c.expected);
    EXPECT_EQ(flag, c.expected);
  }
}

TEST(MatchArg, NeverClearsTheFlag) {
  bool flag = true;
  EXPECT_FALSE(MatchArg("--time", "--append", flag));
  EXPECT_TRUE(flag);
  EXPECT_TRUE(MatchArg("--time=no", "--time", flag));
  EXPECT_TRUE(flag);
}

TEST(MatchYesNoArg, IsFalseOnlyForNo) {
  const struct {
    const char* arg;
    bool expected;
  } cases[] = {
      {"--append", true},       {"--append=yes", true}, {"--append=no", false},
      {"--append=maybe", true}, {"--appendix", true},   {"--append=nonsense", false},
      {"--append=", true},      {"--append=n", true},   {"--append=yes=no", true},
      {"--append =no", true},   {"--append=NO", true},
  };
  for (const auto& c : cases) {
    for (bool flag : {false, true}) {
      EXPECT_TRUE(MatchYesNoArg(c.arg, "--append", flag));
      EXPECT_EQ(flag, c.expected) << c.arg;
    }
  }
}

TEST(MatchYesNoArg, KeepsTheFlagWithoutAMatch) {
  for (bool flag : {false, true}) {
    const bool before = flag;
    EXPECT_FALSE(MatchYesNoArg("--time=no", "--append", flag));
    EXPECT_EQ(flag, before);
  }
}

TEST(EndsWithEqualsNumber, ReadsTheNumberAfterTheLastEqualsSign) {
  const struct {
    const char* arg;
    double expected;
  } cases[] = {
      {"--abortIfLonger=1.5", 1.5},
      {"--abortIfLonger=a=2", 2},
      {"=abc", 0},
      {"x=12s", 12},
      {"x= 3", 3},
      {"x=-1", -1},
      {"x=1e3", 1000},
      {"x=.25", 0.25},
  };
  for (const auto& c : cases) {
    double number = -7;
    EXPECT_TRUE(EndsWithEqualsNumber(c.arg, number)) << c.arg;
    EXPECT_EQ(number, c.expected) << c.arg;
  }
}

TEST(EndsWithEqualsNumber, RequiresAValueAfterTheEqualsSign) {
  for (const char* arg : {"", "--abortIfLonger", "=", "--abortIfLonger=", "x=1="}) {
    double number = -7;
    EXPECT_FALSE(EndsWithEqualsNumber(arg, number)) << arg;
    EXPECT_EQ(number, -7) << arg;
  }
}

TEST(ScanCommandLine, ComparesInThisOrder) {
  const Strings expected = {"-h",
                            "--help",
                            "-v",
                            "--version",
                            "--dumpErrors",
                            "--debugDumpFilenames",
                            "--debugDumpFilesWithHugeOutput",
                            "--debugDump",
                            "--time",
                            "--tag-relative",
                            "--cannonical-paths",
                            "--checkForFilesWithAbortedParse",
                            "--reportIfLonger",
                            "--abortIfLonger",
                            "--sort",
                            "--append",
                            "--filterToken",
                            "-I",
                            "-L",
                            "-f",
                            "--exclude",
                            "--c-kinds",
                            "--excmd=number",
                            "--language-force",
                            "--thorough",
                            "--macros="};
  EXPECT_EQ(OptionSpellings(), expected);
}

struct FlagRow {
  const char* option;
  bool Options::*flag;
};

constexpr FlagRow kFlags[] = {
    {"--dumpErrors", &Options::dumpErrors},
    {"--debugDumpFilenames", &Options::debugDumpFilenames},
    {"--debugDumpFilesWithHugeOutput", &Options::debugDumpFilesWithHugeOutput},
    {"--debugDump", &Options::debugDump},
    {"--time", &Options::time},
};

constexpr FlagRow kYesNo[] = {
    {"--tag-relative", &Options::tagRelative},
    {"--cannonical-paths", &Options::cannonicalPaths},
    {"--checkForFilesWithAbortedParse", &Options::checkForFilesWithAbortedParse},
    {"--append", &Options::append},
};

/// Expects `options` to be the defaults except that `flag` is `value`.
void ExpectOnly(const Options& options, bool Options::*flag, bool value, const std::string& arg) {
  Options expected;
  expected.*flag = value;
  for (const FlagRow& row : kFlags) {
    EXPECT_EQ(options.*row.flag, expected.*row.flag) << arg << " | " << row.option;
  }
  for (const FlagRow& row : kYesNo) {
    EXPECT_EQ(options.*row.flag, expected.*row.flag) << arg << " | " << row.option;
  }
}

TEST(ScanCommandLine, SetsPlainFlagsWhateverFollows) {
  for (const FlagRow& row : kFlags) {
    for (const char* tail : {"", "=yes", "=no", "X"}) {
      const std::string arg = std::string(row.option) + tail;
      ExpectOnly(Accepted({arg}).options, row.flag, true, arg);
    }
  }
}

TEST(ScanCommandLine, SetsAndClearsYesNoFlags) {
  for (const FlagRow& row : kYesNo) {
    for (const char* tail : {"", "=yes", "=maybe", "ing"}) {
      const std::string arg = std::string(row.option) + tail;
      ExpectOnly(Accepted({"-f", "tags", arg}).options, row.flag, true, arg);
    }
    for (const char* tail : {"=no", "=nonsense"}) {
      const std::string arg = std::string(row.option) + tail;
      ExpectOnly(Accepted({"-f", "tags", row.option, arg}).options, row.flag, false, arg);
    }
  }
}

TEST(ScanCommandLine, TriesNamesBeforeTheirPrefixes) {
  EXPECT_FALSE(Accepted({"--debugDumpFilenames"}).options.debugDump);
  EXPECT_FALSE(Accepted({"--debugDumpFilesWithHugeOutput"}).options.debugDump);
  EXPECT_TRUE(Accepted({"--debugDumpFiles"}).options.debugDump);
  // A short option matches every argument that begins with it, known or not.
  EXPECT_EQ(Accepted({"-filterToken", "x"}).outputPath, "x");
  EXPECT_EQ(Accepted({"-Lfoo", "bar"}).listPath, "bar");
  EXPECT_EQ(Accepted({"-foo", "bar"}).outputPath, "bar");
}

TEST(ScanCommandLine, SortsByTheEndOfTheArgument) {
  const struct {
    const char* arg;
    std::int32_t expected;
  } cases[] = {
      {"--sort=yes", 1},        {"--sort=no", 0},     {"--sort=foldcase", 2},
      {"--sorted=yes", 1},      {"--sort=yes=no", 0}, {"--sort=no=foldcase", 2},
      {"--sortwhatever=no", 0},
  };
  for (const auto& c : cases) EXPECT_EQ(Accepted({c.arg}).options.sort, c.expected) << c.arg;
  EXPECT_EQ(Accepted({"--sort=no", "--sort=yes"}).options.sort, 1);
}

TEST(ScanCommandLine, TruncatesSecondsToMicroseconds) {
  const struct {
    const char* value;
    std::int64_t expected;
  } cases[] = {
      {"=1.5", 1500000},
      {"=0", 0},
      {"=abc", 0},
      {"=a=2", 2000000},
      {"=0.0000019", 1},
      {"=-2", -2000000},
      {"=-0.0000019", -1},
      {"=nan", 0},
      {"=1e300", INT64_MAX},
      {"=-1e300", INT64_MIN},
      {"=inf", INT64_MAX},
      {"ish=3", 3000000},
      {"=9223372036854.775", INT64_MAX},  // In microseconds it rounds to 2^63.
  };
  for (const auto& c : cases) {
    const std::string value = c.value;
    EXPECT_EQ(Accepted({"--reportIfLonger" + value}).options.reportIfLonger, c.expected) << value;
    EXPECT_EQ(Accepted({"--abortIfLonger" + value}).options.abortIfLonger, c.expected) << value;
  }
  const Options options = Accepted({"--reportIfLonger=1", "--abortIfLonger=2"}).options;
  EXPECT_EQ(options.reportIfLonger, 1000000);
  EXPECT_EQ(options.abortIfLonger, 2000000);
}

/// Returns the filter tokens that `arguments` add to the built-in ones, sorted.
Strings AddedTokens(const Strings& arguments) {
  Strings result = Accepted(arguments).options.filterTokens;
  for (const std::string& token : Options().filterTokens) std::erase(result, token);
  return result;
}

TEST(ScanCommandLine, SplitsFilterTokensAtCommas) {
  const struct {
    const char* value;
    Strings expected;
  } cases[] = {
      {"FOO", {"FOO"}}, {"B,A", {"A", "B"}}, {"a,,b,", {"", "a", "b"}}, {"", {""}},
      {",", {""}},      {"a,", {"a"}},       {",a", {"", "a"}},         {" a , b", {" a ", " b"}},
      {"-x", {"-x"}},   {",,", {""}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(AddedTokens({"-I", c.value}), c.expected) << c.value;
    EXPECT_EQ(AddedTokens({"--filterToken", c.value}), c.expected) << c.value;
  }
  EXPECT_EQ(AddedTokens({"--filterToken=x", "y"}), Strings{"y"});
  EXPECT_EQ(AddedTokens({"-Ix", "y", "-I", "z"}), (Strings{"y", "z"}));
}

TEST(ScanCommandLine, SortsFilterTokensAndRemovesDuplicates) {
  const Strings tokens =
      Accepted({"-I", "b,a,a", "-I", "DEPRECATED_IN_MAC_OS_X_VERSION_10_5_AND_LATER,b"})
          .options.filterTokens;
  ASSERT_EQ(tokens.size(), 17U);
  EXPECT_TRUE(std::is_sorted(tokens.begin(), tokens.end()));
  // By bytes, "..._AND_LATER" sorts before longer tokens that begin with it, and capitals sort
  // first.
  EXPECT_EQ(tokens[0], "AVAILABLE_MAC_OS_X_VERSION_10_0_AND_LATER");
  EXPECT_EQ(tokens[1],
            "AVAILABLE_MAC_OS_X_VERSION_10_0_AND_LATER_BUT_DEPRECATED_IN_MAC_OS_X_VERSION_10_5");
  EXPECT_EQ(tokens[15], "a");
  EXPECT_EQ(tokens[16], "b");
}

TEST(ScanCommandLine, AcceptsAListFile) {
  const CommandLine file = Accepted({"a.c", "-L", "list"});
  EXPECT_TRUE(file.hasListFile);
  EXPECT_EQ(file.listPath, "list");
  EXPECT_EQ(file.inputPaths, Strings{"a.c"});
  const CommandLine standardInput = Accepted({"-L", "-"});
  EXPECT_TRUE(standardInput.hasListFile);
  EXPECT_EQ(standardInput.listPath, "");
  EXPECT_EQ(Accepted({"-L", "one", "-L", "two"}).listPath, "two");
  EXPECT_EQ(Accepted({"-L", "one", "-L", "-"}).listPath, "");
  EXPECT_FALSE(Accepted({"a.c"}).hasListFile);
}

TEST(ScanCommandLine, AcceptsAnOutputFile) {
  const CommandLine file = Accepted({"-f", "tags"});
  EXPECT_TRUE(file.hasOutputFile);
  EXPECT_EQ(file.outputPath, "tags");
  const CommandLine standardOutput = Accepted({"-f", "-"});
  EXPECT_FALSE(standardOutput.hasOutputFile);
  EXPECT_EQ(standardOutput.outputPath, "");
  EXPECT_EQ(Accepted({"-f", "-", "-f", "tags"}).outputPath, "tags");
}

TEST(ScanCommandLine, IgnoresFourOptionsWithoutValues) {
  for (const char* option : {"--c-kinds", "--c-kinds=+p", "--excmd=number", "--excmd=numbers",
                             "--language-force", "--language-force=C"}) {
    EXPECT_EQ(Accepted({option, "foo"}).inputPaths, Strings{"foo"}) << option;
  }
  for (const char* option : {"--exclude", "--exclude=x"}) {
    const Scan scan({option, "foo"});
    EXPECT_EQ(scan.result, ScanResult::kRun);
    EXPECT_EQ(scan.out, "--exclude directive ignored\n");
    EXPECT_EQ(scan.err, "");
    EXPECT_EQ(scan.line.inputPaths, Strings{"foo"}) << option;
  }
}

TEST(ScanCommandLine, TreatsEverythingElseAsAnInputPath) {
  const Strings paths = {
      "a.c", "--foo", "-",  "",   "-x",    "--excmd=pattern", "--Sort", "--canonical-paths",
      "-i",  "-l",    "-F", "--", "dir/b", "--dumperrors",    " -h"};
  EXPECT_EQ(Accepted(paths).inputPaths, paths);
}

TEST(ScanCommandLine, ShowsUsageAndVersionAndStops) {
  const struct {
    Strings arguments;
    const char* begin;
  } cases[] = {
      {{}, "vexltags v0.78a3, a"},
      {{"-h"}, "vexltags v0.78a3, a"},
      {{"--help"}, "vexltags v0.78a3, a"},
      {{"-hello"}, "vexltags v0.78a3, a"},
      {{"--helpful"}, "vexltags v0.78a3, a"},
      {{"-v"}, "vexltags v 0.78a3, "},
      {{"--version=foo"}, "vexltags v 0.78a3, "},
      {{"-verbose"}, "vexltags v 0.78a3, "},
      {{"--time", "a.c", "--help", "--sort"}, "vexltags v0.78a3, a"},
  };
  for (const auto& c : cases) {
    const Scan scan(c.arguments);
    EXPECT_EQ(scan.result, ScanResult::kDone) << testing::PrintToString(c.arguments);
    EXPECT_TRUE(scan.out.starts_with(c.begin)) << scan.out;
    EXPECT_EQ(scan.err, "");
  }
  EXPECT_EQ(Scan({"-v", "-h"}).out.find("Usage"), std::string::npos);
  EXPECT_NE(Scan({"-h", "-v"}).out.find("Usage"), std::string::npos);
}

TEST(ScanCommandLine, RejectsWithAMessage) {
  const struct {
    Strings arguments;
    const char* message;
  } cases[] = {
      {{"--reportIfLonger"}, "--reportIfLonger(=numberOfSeconds) expected, --reportIfLonger\n"},
      {{"--reportIfLongerX="}, "--reportIfLonger(=numberOfSeconds) expected, --reportIfLongerX=\n"},
      {{"--abortIfLonger"}, "--abortIfLonger(=numberOfSeconds) expected, --abortIfLonger\n"},
      {{"--abortIfLonger="}, "--abortIfLonger(=numberOfSeconds) expected, --abortIfLonger=\n"},
      {{"--sort"}, "--sort(=yes|=no|=foldcase) expected, --sort\n"},
      {{"--sort=yes "}, "--sort(=yes|=no|=foldcase) expected, --sort=yes \n"},
      {{"--sort=1"}, "--sort(=yes|=no|=foldcase) expected, --sort=1\n"},
      {{"-I"}, "expected filter token\n"},
      {{"--filterToken=x"}, "expected filter token\n"},
      {{"-L"}, "expected input file path\n"},
      {{"-Llist"}, "expected input file path\n"},
      {{"-L", "--sort=no"}, " \"-L -\"  or \"-L <fileName>\" expected, saw --sort=no \n"},
      {{"-L", "--"}, " \"-L -\"  or \"-L <fileName>\" expected, saw -- \n"},
      {{"-f"}, "expected output file path\n"},
      {{"-ftags"}, "expected output file path\n"},
      {{"-f", "-x"}, " \"-f -\"  or \"-f <fileName>\" expected, saw -x \n"},
      {{"-f", "a", "-f", "-x"}, " \"-f -\"  or \"-f <fileName>\" expected, saw -x \n"},
      {{"-f", "a", "-f", "b"},
       " an output file already specified earlier, attempting to reset to b \n"},
      {{"-f", "a", "-f", "-"},
       " an output file already specified earlier, attempting to reset to - \n"},
      {{"-L", "list", "a.c"}, "unexpected path a.c, -L already specified\n"},
      {{"-L", "-", "--foo"}, "unexpected path --foo, -L already specified\n"},
      {{"--append"}, "\"--append=yes\" requested without an output file specified\n"},
      {{"--append", "-f", "-", "a.c"},
       "\"--append=yes\" requested without an output file specified\n"},
  };
  for (const auto& c : cases) {
    const Scan scan(c.arguments);
    EXPECT_EQ(scan.result, ScanResult::kFailed) << testing::PrintToString(c.arguments);
    EXPECT_EQ(scan.err, c.message);
    EXPECT_EQ(scan.out, "");
  }
}

TEST(ScanCommandLine, StopsAtTheFirstBadArgument) {
  const Scan scan({"--sort", "--help", "-L"});
  EXPECT_EQ(scan.result, ScanResult::kFailed);
  EXPECT_EQ(scan.err, "--sort(=yes|=no|=foldcase) expected, --sort\n");
  EXPECT_EQ(scan.out, "");
}

TEST(ScanCommandLine, RequiresAnOutputFileOnlyIfAppendIsOn) {
  EXPECT_FALSE(Accepted({"--append", "--append=no", "a.c"}).options.append);
  EXPECT_TRUE(Accepted({"--append", "a.c", "-f", "tags"}).options.append);
}

TEST(ScanCommandLine, MatchesThoroughExactly) {
  EXPECT_FALSE(Accepted({"a.c"}).options.thorough);
  EXPECT_TRUE(Accepted({"--thorough", "a.c"}).options.thorough);
  for (const char* path : {"--thoroughly", "--thorough=yes", "--thorough ", "--thoroug"}) {
    const CommandLine line = Accepted({path});
    EXPECT_FALSE(line.options.thorough) << path;
    EXPECT_EQ(line.inputPaths, Strings{path});
  }
}

TEST(ScanCommandLine, CollectsMacroPaths) {
  EXPECT_EQ(Accepted({"a.c"}).options.macroPaths, Strings{});
  const CommandLine line = Accepted({"--macros=include", "a.c", "--macros=x=y.h"});
  EXPECT_EQ(line.options.macroPaths, (Strings{"include", "x=y.h"}));
  EXPECT_EQ(line.inputPaths, Strings{"a.c"});
  EXPECT_EQ(Accepted({"--macros"}).inputPaths, Strings{"--macros"});
}

}  // namespace
}  // namespace vexltags
