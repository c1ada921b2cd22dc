// SPDX-License-Identifier: MIT
// Tests of rewriting whole files.
#include "portable/rewrite.h"

#include <gtest/gtest.h>

#include <string>

#include "testing/scratch.h"

namespace vexltags {
namespace {

using testing_support::ReadFile;
using testing_support::ScratchFolder;
using testing_support::WriteFile;

const std::string kFormatLine = "!_TAG_FILE_FORMAT\t2\t/extended format/\n";

std::string SortedLine(char mark) {
  return std::string("!_TAG_FILE_SORTED\t") + mark + "\t/0=unsorted, 1=sorted, 2=foldcase/\n";
}

/// The outcome of a rewrite, in whose messages the input is called "tags".
struct Result {
  int status;
  std::string output;
  std::string messages;
};

Result Rewrite(const std::string& input) {
  const ScratchFolder scratch;
  WriteFile(scratch.Path("in"), input);
  std::FILE* file = std::fopen(scratch.Path("in").c_str(), "rb");
  FileWriter writer;
  EXPECT_TRUE(writer.OpenFile(scratch.Path("out"), FileWriter::Mode::Replace));
  ::testing::internal::CaptureStderr();
  const int status = RewriteTags(file, {"/home/me", "tags"}, writer);
  std::string messages = ::testing::internal::GetCapturedStderr();
  EXPECT_TRUE(writer.Close());
  std::fclose(file);
  return {status, ReadFile(scratch.Path("out")).value_or("(none)"), messages};
}

void ExpectRewritten(const std::string& input, const std::string& expected,
                     const std::string& messages = "") {
  Result result = Rewrite(input);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, expected);
  EXPECT_EQ(result.messages, messages);
  // A second rewrite changes nothing.
  result = Rewrite(expected);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, expected);
  EXPECT_EQ(result.messages, "");
}

TEST(RewriteTags, WritesAHeaderWithThreeFields) {
  ExpectRewritten(
      "!_TAG_FILE_FORMAT\t2\t/extended format/ \n"
      "!_TAG_FILE_SORTED\t1 /0=unsorted, 1=sorted, 2=foldcase/ \n"
      "!_TAG_PROGRAM_NAME\tvexltags\n"
      "!_TAG_PROGRAM_VERSION\t0.78a3\n",
      kFormatLine + SortedLine('1') +
          "!_TAG_PROGRAM_NAME\tvexltags\t//\n!_TAG_PROGRAM_VERSION\t0.78a3\t//\n");
}

TEST(RewriteTags, KeepsHeaderLinesOfOtherPrograms) {
  ExpectRewritten(
      "!_TAG_FILE_SORTED\t0\t//\n!_TAG_PROGRAM_URL\thttps://x\t/site/\n!_TAG_ODD\n",
      kFormatLine + SortedLine('0') + "!_TAG_PROGRAM_URL\thttps://x\t/site/\n!_TAG_ODD\t\t//\n");
}

TEST(RewriteTags, TreatsAFileWithoutHeaderAsUnsorted) {
  ExpectRewritten("b\tb.c\t1;\"\tf\na\tb.c\t2;\"\tf\n",
                  kFormatLine + SortedLine('0') + "b\tb.c\t1;\"\tf\na\tb.c\t2;\"\tf\n");
}

TEST(RewriteTags, TerminatesTheLastLine) {
  ExpectRewritten("b\tb.c\t1;\"\tf", kFormatLine + SortedLine('0') + "b\tb.c\t1;\"\tf\n");
}

TEST(RewriteTags, ConvertsLineEnds) {
  const Result result = Rewrite(
      "!_TAG_FILE_SORTED\t0 x\r\n!_TAG_PROGRAM_NAME\tvexltags\r\n"
      "S\ta.swift\t1;\"\ts\r\na\tn\\\r\nx.c\t2;\"\tf\r\nb\ta.swift\t1;\"\tV\tS\r\n");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, kFormatLine + SortedLine('0') +
                               "!_TAG_PROGRAM_NAME\tvexltags\t//\n"
                               "S\ta.swift\t1;\"\ts\nb\ta.swift\t1;\"\tV\tstruct:S\n");
  EXPECT_EQ(result.messages, "skipped the tags of a path with a tab or newline: n\\nx.c\n");
}

TEST(RewriteTags, KeepsZeroBytesAndLongLines) {
  const std::string longName(1 << 20, 'x');
  const std::string lines = std::string("a\0b\ta\0.c\t1;\"\tf\n", 15) + longName + "\t" + longName +
                            "\t1;\"\tf\t" + longName + "\n";
  ExpectRewritten(lines, kFormatLine + SortedLine('0') + lines);
}

TEST(RewriteTags, LimitsTheLengthOfAPath) {
  std::string endless = "a\tb\\\n";
  while (endless.size() < 1000000) endless += "c\\\n";
  const Result result = Rewrite(endless);
  EXPECT_EQ(result.status, -1);
  // The reader gives up long before the last line.
  const std::string start = "tags is not a tags file: line ";
  ASSERT_TRUE(result.messages.starts_with(start)) << result.messages;
  EXPECT_LT(std::stol(result.messages.substr(start.size())), 10000);
}

TEST(RewriteTags, SortsByTheSortMark) {
  const std::string lines = "A_b\ta.c\t1;\"\tf\nAa\ta.c\t1;\"\tf\nab\ta.c\t1;\"\tf\n";
  ExpectRewritten("!_TAG_FILE_SORTED\t1 x\n" + lines, kFormatLine + SortedLine('1') + lines);
  ExpectRewritten(
      "!_TAG_FILE_SORTED\t2 x\n" + lines,
      kFormatLine + SortedLine('2') + "Aa\ta.c\t1;\"\tf\nab\ta.c\t1;\"\tf\nA_b\ta.c\t1;\"\tf\n");
}

TEST(RewriteTags, WritesPlainPaths) {
  ExpectRewritten("a\t~/x\\ y.c\t1;\"\tf\nb\t../\\[z\\].c\t2;\"\tm\tstruct:S\n",
                  kFormatLine + SortedLine('0') +
                      "a\t/home/me/x y.c\t1;\"\tf\nb\t../[z].c\t2;\"\tm\tstruct:S\n");
}

TEST(RewriteTags, SkipsPathsWithTabOrNewline) {
  ExpectRewritten(
      "a\t/t\\\tx.c\t1;\"\tf\na\t/ok.c\t1;\"\tf\nb\t/t\\\tx.c\t2;\"\tf\nc\t/n\\\nx.c\t3;\"\tf\n",
      kFormatLine + SortedLine('0') + "a\t/ok.c\t1;\"\tf\n",
      "skipped the tags of a path with a tab or newline: /t\\tx.c\n"
      "skipped the tags of a path with a tab or newline: /n\\nx.c\n");
}

TEST(RewriteTags, KeepsTagsOfOtherPrograms) {
  const std::string line = "a\t~/x\\ y.c\t/^int a;$/;\"\tv\ttyperef:typename:int\n";
  ExpectRewritten(line, kFormatLine + SortedLine('0') + line);
}

TEST(RewriteTags, AddsKeysToSwiftScopes) {
  const std::string expected =
      "Body\ta.swift\t4;\"\tc\n"
      "Body\ta.swift\t9;\"\tZ\n"
      "State\ta.swift\t6;\"\tg\tclass:Body\n"
      "fast\ta.swift\t6;\"\te\tenum:Body.State\n"
      "halt()\ta.swift\t7;\"\tf\tenum:Body.State\n"
      "area\ta.swift\t5;\"\tV\tclass:Body\n"
      "stop()\ta.swift\t9;\"\tf\textension:Body\n"
      "lost\ta.swift\t9;\"\tV\tscope:Nobody\n"
      "of(c)\tb.c\t9;\"\tf\todd\n";
  ExpectRewritten(
      "Body\ta.swift\t4;\"\tc\n"
      "Body\ta.swift\t9;\"\tZ\n"
      "State\ta.swift\t6;\"\tg\tclass:Body\n"
      "fast\ta.swift\t6;\"\te\tenum:Body.State\n"
      "halt()\ta.swift\t7;\"\tf\tBody.State\n"
      "area\ta.swift\t5;\"\tV\tBody\n"
      "stop()\ta.swift\t9;\"\tf\tBody\n"
      "lost\ta.swift\t9;\"\tV\tNobody\n"
      "of(c)\tb.c\t9;\"\tf\todd\n",
      kFormatLine + SortedLine('0') + expected);
}

TEST(RewriteTags, FindsATypeLaterInASortedFile) {
  ExpectRewritten(
      "!_TAG_FILE_SORTED\t1 x\nA\ta\\ b.swift\t2;\"\tV\tB\nB\ta\\ b.swift\t1;\"\ts\n",
      kFormatLine + SortedLine('1') + "A\ta b.swift\t2;\"\tV\tstruct:B\nB\ta b.swift\t1;\"\ts\n");
}

TEST(RewriteTags, AcceptsANameThatBeginsWithAnExclamationMark) {
  ExpectRewritten("!(a:)\ta.swift\t1;\"\tf\n",
                  kFormatLine + SortedLine('0') + "!(a:)\ta.swift\t1;\"\tf\n");
}

TEST(RewriteTags, DropsLaterHeaders) {
  ExpectRewritten("a\ta.c\t1;\"\tf\n!_TAG_FILE_SORTED\t2 x\nb\ta.c\t1;\"\tf\n",
                  kFormatLine + SortedLine('0') + "a\ta.c\t1;\"\tf\nb\ta.c\t1;\"\tf\n");
}

TEST(RewriteTags, RejectsFilesThatAreNotTagsFiles) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "it is empty"},
      {"int main() {}\n", "line 1 is not a tag"},
      {"!_TAG_FILE_FORMAT\t2\nx\n", "line 2 is not a tag"},
      {"a\tb.c\t1;\"\tf\na\tb\tc\n", "line 2 is not a tag"},
      {"a\tb\\\nc\n", "line 2 is not a tag"},
      {"!_TAG_FILE_SORTED\t3\n", "unknown sort mark"},
      {"!_TAG_FILE_SORTED\n", "unknown sort mark"},
  };
  for (const auto& [input, why] : cases) {
    const Result result = Rewrite(input);
    EXPECT_EQ(result.status, -1) << input;
    EXPECT_EQ(result.messages, std::string("tags is not a tags file: ") + why + "\n");
  }
}

TEST(RewriteTags, FailsIfWritingFails) {
  const ScratchFolder scratch;
  WriteFile(scratch.Path("in"), "a\ta.c\t1;\"\tf\n");
  std::FILE* file = std::fopen(scratch.Path("in").c_str(), "rb");
  FileWriter writer;  // Remains closed.
  EXPECT_FALSE(writer.OpenFile(scratch.Path("no/folder"), FileWriter::Mode::Replace));
  EXPECT_EQ(RewriteTags(file, {"", "tags"}, writer), -1);
  std::fclose(file);
}

}  // namespace
}  // namespace vexltags
