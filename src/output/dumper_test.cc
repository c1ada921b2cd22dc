// SPDX-License-Identifier: MIT
// Tests of the sink: assembling lines, file fields, and all ways to write a file.
#include "output/dumper.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "testing/scratch.h"

namespace vexltags {
namespace {

using testing_support::ReadFile;
using testing_support::RunInChild;
using testing_support::ScopedDirectory;
using testing_support::ScopedVariable;
using testing_support::ScratchFolder;
using testing_support::WriteFile;
using Lines = std::vector<std::string>;

std::string Header(int sort) {
  return "!_TAG_FILE_FORMAT\t2\t/extended format/ \n!_TAG_FILE_SORTED\t" + std::to_string(sort) +
         " /0=unsorted, 1=sorted, 2=foldcase/ \n!_TAG_PROGRAM_NAME\tvexltags\n"
         "!_TAG_PROGRAM_VERSION\t0.78a3\n";
}

TEST(DumperPrint, AssemblesLinesFromPieces) {
  const struct {
    const char* why;
    Lines pieces;
    Lines lines;
  } cases[] = {
      {"pieces add up to a line", {"a", "\tb", "\n"}, {"a\tb\n"}},
      {"a newline inside a piece splits nothing", {"a\nb", "c\n"}, {"a\nbc\n"}},
      {"two lines in one piece stay one", {"a\nb\n"}, {"a\nb\n"}},
      {"empty pieces do nothing", {"", "a", "", "\n", ""}, {"a\n"}},
      {"a newline alone is a line", {"\n"}, {"\n"}},
      {"an incomplete line is no line", {"a\n", "b"}, {"a\n"}},
      {"lines keep the order of emission", {"b\n", "a\n"}, {"b\n", "a\n"}},
  };
  for (const auto& c : cases) {
    Dumper dumper;
    for (const std::string& piece : c.pieces) dumper.Print(piece);
    EXPECT_EQ(dumper.Lines(), c.lines) << c.why;
  }
}

TEST(DumperPrint, CutsFormattedTextAt1023Bytes) {
  const struct {
    std::size_t length;  // of the text before the newline
    std::size_t kept;
    bool complete;
  } cases[] = {{1021, 1021, true}, {1022, 1022, true}, {1023, 1023, false}, {5000, 1023, false}};
  for (const auto& c : cases) {
    Dumper dumper;
    dumper.PrintFormat("%s\n", std::string(c.length, 'x').c_str());
    EXPECT_EQ(dumper.Lines().size(), c.complete ? 1U : 0U) << c.length;
    if (!c.complete) dumper.Print("y\n");
    EXPECT_EQ(dumper.Lines(), Lines{std::string(c.kept, 'x') + (c.complete ? "\n" : "y\n")});
  }
}

TEST(DumperPrint, NeverCutsTextGivenAsAString) {
  Dumper dumper;
  const std::string name(100000, 'n');
  dumper.Print(name);
  dumper.PrintFormat("\t%s\t%d;\"\t%c\n", "a.c", 12, 'f');
  EXPECT_EQ(dumper.Lines(), Lines{name + "\ta.c\t12;\"\tf\n"});
}

TEST(DumperPrint, PrintsPercentSignsInTextAsTheyAre) {
  Dumper dumper;
  dumper.Print("operator%s\n");
  EXPECT_EQ(dumper.Lines(), Lines{"operator%s\n"});
}

TEST(DumperPrint, ShowsEachCompleteLineToTheObserver) {
  Dumper dumper;
  Lines first;
  Lines second;
  dumper.Print("before\n");
  dumper.SetPrintObserver([&first](const std::string& line) { first.push_back(line); });
  dumper.Print("a");
  EXPECT_EQ(first, Lines{});
  dumper.PrintFormat("%d\n", 1);
  dumper.SetPrintObserver([&second](const std::string& line) { second.push_back(line); });
  dumper.Print("b\n");
  dumper.SetPrintObserver(nullptr);
  dumper.Print("c\n");
  EXPECT_EQ(first, Lines{"a1\n"});
  EXPECT_EQ(second, Lines{"b\n"});
}

TEST(DumperFileName, IsTheStoredPathByDefault) {
  Options options;
  EXPECT_EQ(Dumper().FileName(options, "~/a\\ b.c"), "~/a\\ b.c");
  options.cannonicalPaths = false;
  EXPECT_EQ(Dumper().FileName(options, "/w/a.c"), "/w/a.c");
}

// Runs in a child because home and working directory are read once per process.
TEST(DumperFileName, IsRelativeOnRequest) {
  const ScratchFolder scratch;
  const std::string& root = scratch.Path();
  std::filesystem::create_directories(scratch.Path("home/tree"));
  const ScopedVariable home("HOME", scratch.Path("home").c_str());
  const ScopedVariable pwd("PWD", scratch.Path("home/tree").c_str());
  const struct {
    bool cannonical;
    std::string path;
    std::string field;
  } cases[] = {
      {true, "~/tree/x.c", "x.c"},
      {true, "~/x.c", "../x.c"},
      {true, root + "/x.c", "../../x.c"},
      {true, "/x.c", "/x.c"},
      {true, "/elsewhere/x.c", "/elsewhere/x.c"},
      {false, root + "/home/tree/x.c", "x.c"},
      {false, root + "/home/x.c", "../x.c"},
      {false, "~/tree/x.c", "~/tree/x.c"},
  };
  for (const auto& c : cases) {
    const int status = RunInChild([&c, &scratch] {
      const ScopedDirectory directory(scratch.Path("home/tree"));
      Options options;
      options.tagRelative = true;
      options.cannonicalPaths = c.cannonical;
      const std::string field = Dumper().FileName(options, c.path);
      if (field != c.field) std::fprintf(stderr, "%s gave %s\n", c.path.c_str(), field.c_str());
      return field == c.field ? 0 : 1;
    });
    EXPECT_EQ(status, 0) << c.path;
  }
}

TEST(DumperFileName, ReadsTheEnvironmentUntilItGivesAValue) {
  const ScratchFolder scratch;
  std::filesystem::create_directory(scratch.Path("work"));
  testing::internal::CaptureStdout();
  const int status = RunInChild([&scratch] {
    const ScopedDirectory directory(scratch.Path("work"));
    const ScopedVariable pwd("PWD", scratch.Path("work").c_str());
    Options options;
    options.tagRelative = true;
    unsetenv("HOME");
    if (Dumper().FileName(options, "~/x.c") != "~/x.c") return 1;
    if (Dumper().FileName(options, "~/x.c") != "~/x.c") return 2;
    setenv("HOME", scratch.Path().c_str(), 1);
    if (Dumper().FileName(options, "~/x.c") != "../x.c") return 3;
    setenv("HOME", "/changed", 1);
    setenv("PWD", "/", 1);
    std::filesystem::current_path("/");
    if (Dumper().FileName(options, "~/x.c") != "../x.c") return 4;
    return 0;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "No $HOME!\nNo $HOME!\n");
}

TEST(DumperDump, WritesToStandardOutputByDefault) {
  const struct {
    int sort;
    const char* lines;
  } cases[] = {
      {0, "b\t1\nB\t2\na\t3\n"},
      {1, "B\t2\na\t3\nb\t1\n"},
      {2, "a\t3\nB\t2\nb\t1\n"},
  };
  for (const auto& c : cases) {
    Options options;
    if (c.sort != 2) options.sort = c.sort;  // 2 is the default
    Dumper dumper;
    for (const char* line : {"b\t1\n", "B\t2\n", "a\t3\n", "unfinished"}) dumper.Print(line);
    testing::internal::CaptureStdout();
    EXPECT_EQ(dumper.Dump(options), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), Header(c.sort) + c.lines);
  }
}

TEST(DumperDump, WritesOnlyTheHeaderWithoutLines) {
  Dumper dumper;
  testing::internal::CaptureStdout();
  EXPECT_EQ(dumper.Dump(Options()), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), Header(2));
}

TEST(DumperDump, ReplacesMergesOrAppends) {
  const std::string old = Header(1) + "m\told\n\nZ\told\n!x\told\nb\t1\nlast";
  const struct {
    const char* why;
    bool exists;
    bool append;
    int sort;
    std::string result;
  } cases[] = {
      {"replace, sorted", true, false, 2, Header(2) + "a\t3\nB\t2\nb\t1\n"},
      {"replace, unsorted", true, false, 0, Header(0) + "b\t1\nB\t2\na\t3\n"},
      {"new, sorted", false, false, 1, Header(1) + "B\t2\na\t3\nb\t1\n"},
      {"append unsorted to a file", true, true, 0, old + "b\t1\nB\t2\na\t3\n"},
      {"append unsorted to none", false, true, 0, "b\t1\nB\t2\na\t3\n"},
      {"append to none, sorted", false, true, 1, Header(1) + "B\t2\na\t3\nb\t1\n"},
      {"append to none, folded", false, true, 2, Header(2) + "a\t3\nB\t2\nb\t1\n"},
      {"merge, sorted", true, true, 1,
       Header(1) + "B\t2\nZ\told\na\t3\nb\t1\nb\t1\nlast\nm\told\n"},
      {"merge, folded", true, true, 2,
       Header(2) + "a\t3\nB\t2\nb\t1\nb\t1\nlast\nm\told\nZ\told\n"},
  };
  for (const auto& c : cases) {
    const ScratchFolder scratch;
    const std::string path = scratch.Path("tags");
    if (c.exists) WriteFile(path, old);
    Options options;
    options.append = c.append;
    options.sort = c.sort;
    Dumper dumper;
    dumper.SetOutput(path);
    for (const char* line : {"b\t1\n", "B\t2\n", "a\t3\n"}) dumper.Print(line);
    EXPECT_EQ(dumper.Dump(options), 0) << c.why;
    EXPECT_EQ(ReadFile(path), c.result) << c.why;
  }
}

TEST(DumperDump, DuplicatesEveryEntryWhenMergedTwice) {
  const ScratchFolder scratch;
  Options options;
  options.append = true;
  for (int run = 0; run < 2; ++run) {
    Dumper dumper;
    dumper.SetOutput(scratch.Path("tags"));
    dumper.Print("b\t1\n");
    dumper.Print("a\t1\n");
    EXPECT_EQ(dumper.Dump(options), 0);
  }
  EXPECT_EQ(ReadFile(scratch.Path("tags")), Header(2) + "a\t1\na\t1\nb\t1\nb\t1\n");
}

TEST(DumperDump, KeepsOddBytesOfOldLines) {
  const ScratchFolder scratch;
  WriteFile(scratch.Path("tags"), std::string("a\tx\r\n \nb\0\t\xe4\n", 12));
  Options options;
  options.append = true;
  options.sort = 1;
  Dumper dumper;
  dumper.SetOutput(scratch.Path("tags"));
  EXPECT_EQ(dumper.Dump(options), 0);
  EXPECT_EQ(ReadFile(scratch.Path("tags")), Header(1) + std::string(" \na\tx\r\nb\0\t\xe4\n", 12));
}

TEST(DumperDump, CreatesParentDirectories) {
  const ScratchFolder scratch;
  Dumper dumper;
  dumper.SetOutput(scratch.Path("a/b/c/tags"));
  EXPECT_FALSE(std::filesystem::exists(scratch.Path("a"))) << "nothing is made before the end";
  EXPECT_EQ(dumper.Dump(Options()), 0);
  EXPECT_EQ(ReadFile(scratch.Path("a/b/c/tags")), Header(2));
}

TEST(DumperDump, ReportsAFileThatCannotBeOpened) {
  const ScratchFolder scratch;
  WriteFile(scratch.Path("file"), "");
  for (const bool append : {false, true}) {
    for (const std::string& path : {scratch.Path("file/tags"), scratch.Path()}) {
      Options options;
      options.append = append;
      Dumper dumper;
      dumper.SetOutput(path);
      dumper.Print("a\t1\n");
      testing::internal::CaptureStderr();
      EXPECT_EQ(dumper.Dump(options), -1);
      EXPECT_EQ(testing::internal::GetCapturedStderr(), "error opening " + path + "\n");
    }
  }
}

TEST(DumperDump, ReportsAFullDevice) {
  for (const std::size_t lines : {0, 1, 100000}) {
    Dumper dumper;
    dumper.SetOutput("/dev/full");
    for (std::size_t i = 0; i < lines; ++i) dumper.Print("a\t1\n");
    testing::internal::CaptureStderr();
    EXPECT_EQ(dumper.Dump(Options()), -1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "error writing /dev/full\n");
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
  }
}

TEST(DumperDump, ReportsFullOrClosedStandardOutputOnce) {
  for (const bool full : {true, false}) {
    for (const bool printedBefore : {false, true}) {
      testing::internal::CaptureStderr();
      const int status = RunInChild([full, printedBefore] {
        close(STDOUT_FILENO);
        if (full && open("/dev/full", O_WRONLY) != STDOUT_FILENO) return 1;
        if (printedBefore) std::printf("Time: 1us\n");
        Dumper dumper;
        for (int i = 0; i < 100000; ++i) dumper.Print("a\t1\n");
        return dumper.Dump(Options()) == -1 ? 0 : 2;
      });
      EXPECT_EQ(testing::internal::GetCapturedStderr(), "error writing <stdout>\n");
      EXPECT_EQ(status, 0);
    }
  }
}

TEST(DumperDump, LeavesNoPartialTagsFile) {
  const struct {
    const char* why;
    bool exists;
    bool append;
    int sort;
    std::optional<std::string> left;
  } cases[] = {
      {"new", false, false, 2, std::nullopt},
      {"replaced", true, false, 2, "old\t1\n"},
      {"merged", true, true, 2, "old\t1\n"},
      {"appended", true, true, 0, "old\t1\n"},
  };
  for (const auto& c : cases) {
    const ScratchFolder scratch;
    const std::string path = scratch.Path("tags");
    if (c.exists) WriteFile(path, "old\t1\n");
    testing::internal::CaptureStderr();
    const int status = RunInChild([&c, &path] {
      struct rlimit limit = {10000, 10000};
      setrlimit(RLIMIT_FSIZE, &limit);
      Options options;
      options.append = c.append;
      options.sort = c.sort;
      Dumper dumper;
      dumper.SetOutput(path);
      for (int i = 0; i < 5000; ++i) dumper.Print("a\t1\n");
      return dumper.Dump(options) == -1 ? 0 : 1;
    });
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "error writing " + path + "\n") << c.why;
    EXPECT_EQ(status, 0) << c.why;
    EXPECT_EQ(ReadFile(path), c.left) << c.why;
  }
}

}  // namespace
}  // namespace vexltags
