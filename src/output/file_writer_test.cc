// SPDX-License-Identifier: MIT
// Tests of writing to files, and to devices and limits that fail.
#include "output/file_writer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <iterator>
#include <optional>
#include <string>

#include "testing/scratch.h"

namespace vexltags {
namespace {

using testing_support::ReadFile;
using testing_support::RunInChild;
using testing_support::ScratchFolder;
using testing_support::WriteFile;
using Mode = FileWriter::Mode;

// Limits the size of every file of this process.
void LimitFileSize(rlim_t bytes) {
  struct rlimit limit;
  getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = bytes;
  setrlimit(RLIMIT_FSIZE, &limit);
}

// How many entries a folder has.
std::size_t Entries(const ScratchFolder& scratch) {
  const std::filesystem::directory_iterator entries(scratch.Path());
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

TEST(FileWriter, WritesAndAppends) {
  const ScratchFolder scratch;
  const std::string path = scratch.Path("f");
  for (const Mode mode : {Mode::Replace, Mode::Append, Mode::Append}) {
    FileWriter writer;
    ASSERT_TRUE(writer.OpenFile(path, mode));
    EXPECT_TRUE(writer.Write("one"));
    EXPECT_TRUE(writer.Write(""));
    EXPECT_TRUE(writer.Write(" two\n"));
    EXPECT_TRUE(writer.Close());
  }
  EXPECT_EQ(ReadFile(path), "one two\none two\none two\n");
  FileWriter writer;
  ASSERT_TRUE(writer.OpenFile(path, Mode::Replace));
  EXPECT_TRUE(writer.Close());
  EXPECT_EQ(ReadFile(path), "");
}

TEST(FileWriter, WritesPiecesOfEverySizeInOrder) {
  const ScratchFolder scratch;
  std::string expected;
  FileWriter writer;
  ASSERT_TRUE(writer.OpenFile(scratch.Path("f"), Mode::Replace));
  for (const std::size_t size : {1, 65535, 1, 65536, 2, 70000, 3, 200000, 65534, 4}) {
    const std::string piece(size, static_cast<char>('a' + expected.size() % 26));
    EXPECT_TRUE(writer.Write(piece));
    expected += piece;
  }
  EXPECT_TRUE(writer.Close());
  EXPECT_EQ(ReadFile(scratch.Path("f")), expected);
}

TEST(FileWriter, CannotOpenAPathBelowAFileOrADirectory) {
  const ScratchFolder scratch;
  WriteFile(scratch.Path("f"), "");
  for (const std::string& path : {scratch.Path("f/g"), scratch.Path(), std::string()}) {
    FileWriter writer;
    EXPECT_FALSE(writer.OpenFile(path, Mode::Replace)) << path;
    EXPECT_FALSE(writer.Write("x"));
    EXPECT_FALSE(writer.Close());
  }
}

TEST(FileWriter, ReportsAFullDeviceAtTheLastFlush) {
  FileWriter writer;
  ASSERT_TRUE(writer.OpenFile("/dev/full", Mode::Replace));
  EXPECT_TRUE(writer.Write("buffered"));
  EXPECT_FALSE(writer.Close());
  EXPECT_FALSE(writer.Write("more"));
}

TEST(FileWriter, ReportsAFullDeviceAtALargeWrite) {
  FileWriter writer;
  ASSERT_TRUE(writer.OpenFile("/dev/full", Mode::Append));
  EXPECT_FALSE(writer.Write(std::string(100000, 'x')));
  EXPECT_FALSE(writer.Write("more"));
  EXPECT_FALSE(writer.Close());
}

TEST(FileWriter, AbandonLeavesADeviceAlone) {
  FileWriter writer;
  ASSERT_TRUE(writer.OpenFile("/dev/full", Mode::Replace));
  EXPECT_TRUE(writer.Write("x"));
  EXPECT_FALSE(writer.Close());
  writer.Abandon();
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST(FileWriter, ReportsASizeLimitWithoutASignal) {
  const ScratchFolder scratch;
  const std::string path = scratch.Path("f");
  const int status = RunInChild([&path] {
    LimitFileSize(10);
    FileWriter writer;
    if (!writer.OpenFile(path, Mode::Replace) || !writer.Write("0123456789abc")) return 1;
    return writer.Close() ? 2 : 0;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ReadFile(path), "0123456789");
}

TEST(FileWriter, AbandonUndoesTheWriting) {
  enum Path { kDirect, kLink, kHardLink };
  const struct {
    const char* why;
    Mode mode;
    bool exists;
    Path path;
    std::optional<std::string> left;
  } cases[] = {
      {"a new file is removed", Mode::Replace, false, kDirect, std::nullopt},
      {"a file to be replaced stays", Mode::Replace, true, kDirect, "old\n"},
      {"also through a link", Mode::Replace, true, kLink, "old\n"},
      {"a new file through a link is emptied", Mode::Replace, false, kLink, ""},
      {"one with hard links is written in place and removed", Mode::Replace, true, kHardLink,
       std::nullopt},
      {"an extended file gets its length back", Mode::Append, true, kDirect, "old\n"},
      {"also through a link", Mode::Append, true, kLink, "old\n"},
  };
  for (const auto& c : cases) {
    const ScratchFolder scratch;
    const std::string path = scratch.Path("f");
    const std::string opened = c.path == kLink ? scratch.Path("link") : path;
    if (c.exists) WriteFile(path, "old\n");
    if (c.path == kLink) std::filesystem::create_symlink("f", opened);
    if (c.path == kHardLink) std::filesystem::create_hard_link(path, scratch.Path("other"));
    const std::size_t entries = Entries(scratch);
    FileWriter writer;
    ASSERT_TRUE(writer.OpenFile(opened, c.mode)) << c.why;
    EXPECT_TRUE(writer.Write(std::string(100000, 'x'))) << c.why;
    EXPECT_TRUE(writer.Write("buffered")) << c.why;
    writer.Abandon();
    EXPECT_EQ(ReadFile(path), c.left) << c.why;
    EXPECT_EQ(std::filesystem::is_symlink(opened), c.path == kLink) << c.why;
    EXPECT_EQ(Entries(scratch), entries + (c.path == kLink && !c.exists) - (c.exists && !c.left))
        << c.why;
    EXPECT_FALSE(writer.Write("x")) << c.why;
    EXPECT_FALSE(writer.Close()) << c.why;
  }
}

TEST(FileWriter, ReplacesAtOnce) {
  const ScratchFolder scratch;
  const std::string path = scratch.Path("f");
  WriteFile(path, "old");
  FileWriter writer;
  ASSERT_TRUE(writer.OpenFile(path, Mode::Replace));
  EXPECT_TRUE(writer.Write(std::string(100000, 'x')));
  EXPECT_EQ(ReadFile(path), "old");
  EXPECT_FALSE(writer.HasFailed());
  EXPECT_TRUE(writer.Close());
  EXPECT_EQ(ReadFile(path), std::string(100000, 'x'));
  EXPECT_EQ(Entries(scratch), 1U);
}

TEST(FileWriter, WritesInPlaceWhatHasHardLinks) {
  const ScratchFolder scratch;
  WriteFile(scratch.Path("f"), "a long old text");
  std::filesystem::create_hard_link(scratch.Path("f"), scratch.Path("other"));
  FileWriter writer;
  ASSERT_TRUE(writer.OpenFile(scratch.Path("f"), Mode::Replace));
  EXPECT_TRUE(writer.Write("new"));
  EXPECT_TRUE(writer.Close());
  EXPECT_EQ(ReadFile(scratch.Path("other")), "new");
  EXPECT_EQ(Entries(scratch), 2U);
}

TEST(FileWriter, LeavesTheOldFileWhereAReplacementFailsOrIsForgotten) {
  const ScratchFolder scratch;
  const std::string path = scratch.Path("f");
  WriteFile(path, "old");
  const int status = RunInChild([&path] {
    LimitFileSize(10);
    FileWriter writer;
    if (!writer.OpenFile(path, Mode::Replace) || !writer.Write("0123456789abc")) return 1;
    return writer.Close() || !writer.HasFailed() ? 2 : 0;
  });
  EXPECT_EQ(status, 0);
  {
    FileWriter writer;
    EXPECT_TRUE(writer.OpenReplacement(path));
    EXPECT_TRUE(writer.Write("new"));
  }
  EXPECT_EQ(ReadFile(path), "old");
  EXPECT_EQ(Entries(scratch), 1U);
}

TEST(FileWriter, AbandonLeavesAFileThatReplacedIt) {
  const ScratchFolder scratch;
  FileWriter writer;
  ASSERT_TRUE(writer.OpenFile(scratch.Path("f"), Mode::Replace));
  WriteFile(scratch.Path("other"), "other");
  std::filesystem::rename(scratch.Path("other"), scratch.Path("f"));
  writer.Abandon();
  EXPECT_EQ(ReadFile(scratch.Path("f")), "other");
}

TEST(FileWriter, WritesToStandardOutputAfterEarlierText) {
  testing::internal::CaptureStdout();
  std::printf("before ");
  {
    FileWriter writer;
    writer.OpenStandardOutput();
    EXPECT_TRUE(writer.Write("tags "));
    EXPECT_TRUE(writer.Close());
  }
  std::printf("after");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "before tags after");
}

TEST(FileWriter, ReportsBrokenStandardOutputWithoutASignal) {
  enum Kind { Full, Closed, ReaderGone };
  for (const Kind kind : {Full, Closed, ReaderGone}) {
    for (const bool printedBefore : {false, true}) {
      const int status = RunInChild([kind, printedBefore] {
        int ends[2] = {-1, -1};
        if (kind == Full) ends[1] = open("/dev/full", O_WRONLY);
        if (kind == ReaderGone && pipe(ends) != 0) return 1;
        close(STDOUT_FILENO);
        if (kind == ReaderGone) close(ends[0]);
        if (kind != Closed && dup2(ends[1], STDOUT_FILENO) < 0) return 2;
        if (printedBefore) std::printf("before");
        FileWriter writer;
        writer.OpenStandardOutput();
        writer.Write("tags");
        return writer.Close() ? 3 : 0;
      });
      // The child loses its own output when it exits, which must not kill it either.
      EXPECT_EQ(status, 0) << kind << printedBefore;
    }
  }
}

TEST(FileWriter, RestoresSignalActions) {
  const int status = RunInChild([] {
    signal(SIGPIPE, SIG_DFL);
    { const FileWriter writer; }
    raise(SIGPIPE);
    return 0;
  });
  EXPECT_EQ(status, -SIGPIPE);
}

}  // namespace
}  // namespace vexltags
