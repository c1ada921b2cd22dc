// SPDX-License-Identifier: MIT
// Tests of what the cache keeps, and of what it survives.
#include "cache/result_cache.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>

#include "testing/scratch.h"

namespace vexltags {
namespace {

using testing_support::ReadFile;
using testing_support::RunInChild;
using testing_support::ScratchFolder;
using testing_support::WriteFile;

class ResultCacheTest : public testing::Test {
 protected:
  std::string Path() const { return scratch.Path("cache/tree.db"); }

  /// Stores one file with a result; false if that fails.
  bool Store(const std::string& name, const std::string& result) const {
    ResultCache cache;
    if (!cache.Open(Path(), "same") || !cache.Begin()) return false;
    CachedFile file;
    for (CachedFile& known : cache.Files()) {
      if (known.path == name) file = known;
    }
    file.path = name;
    file.modifiedAt = 5000000000;
    file.resultHash = ~std::uint64_t{0};
    file.info = "info of " + name;
    cache.Put(file);
    cache.PutBlob(file.id, BlobKind::kResult, result);
    cache.PutState("state", "after " + name);
    return cache.Commit();
  }

  /// Everything in the cache as text.
  std::string Content(const std::string& identity = "same") const {
    ResultCache cache;
    if (!cache.Open(Path(), identity)) return "closed";
    std::string all = cache.WasDamaged() ? "damaged;" : "";
    for (const CachedFile& file : cache.Files()) {
      all += file.path + "," + std::to_string(file.modifiedAt) + "," + file.info + "," +
             std::to_string(file.resultHash + 2) + "," + cache.Blob(file.id, BlobKind::kResult) +
             ";";
    }
    return all + cache.State("state");
  }

  static constexpr char kA[] = "a,5000000000,info of a,1,A;";
  static constexpr char kB[] = "b,5000000000,info of b,1,B;";
  const ScratchFolder scratch;
};

TEST_F(ResultCacheTest, KeepsWhatIsCommitted) {
  EXPECT_EQ(Content(), "");
  ASSERT_TRUE(Store("a", "A"));
  EXPECT_EQ(Content(), std::string(kA) + "after a");
  ASSERT_TRUE(Store("b", "B"));
  ASSERT_TRUE(Store("b", "B"));
  EXPECT_EQ(Content(), std::string(kA) + kB + "after b");
}

TEST_F(ResultCacheTest, ForgetsWhatIsRemoved) {
  ASSERT_TRUE(Store("a", "A"));
  ASSERT_TRUE(Store("b", "B"));
  {
    ResultCache cache;
    ASSERT_TRUE(cache.Open(Path(), "same"));
    ASSERT_TRUE(cache.Begin());
    cache.Remove(cache.Files().at(0).id);
    ASSERT_TRUE(cache.Commit());
  }
  EXPECT_EQ(Content(), std::string(kB) + "after b");
}

TEST_F(ResultCacheTest, IsEmptyForAnotherIdentity) {
  ASSERT_TRUE(Store("a", "A"));
  EXPECT_EQ(Content("other"), "");
}

TEST_F(ResultCacheTest, KeepsNothingWithoutACommit) {
  for (const bool isKilled : {false, true}) {
    EXPECT_EQ(RunInChild([&] {
                ResultCache cache;
                if (!cache.Open(Path(), "same") || !cache.Begin()) return 1;
                CachedFile file;
                file.path = "lost";
                cache.Put(file);
                if (isKilled) raise(SIGKILL);
                return 0;
              }),
              isKilled ? -SIGKILL : 0);
    EXPECT_EQ(Content(), "");
  }
  ASSERT_TRUE(Store("a", "A"));
  EXPECT_EQ(RunInChild([&] {
              ResultCache cache;
              if (!cache.Open(Path(), "same") || !cache.Begin()) return 1;
              CachedFile file;
              file.path = "lost";
              cache.Put(file);
              cache.PutBlob(file.id, BlobKind::kResult, std::string(10000000, 'x'));
              return raise(SIGKILL);
            }),
            -SIGKILL);
  EXPECT_EQ(Content(), std::string(kA) + "after a");
}

TEST_F(ResultCacheTest, TheFirstOfTwoCommits) {
  ASSERT_TRUE(Store("a", "A"));
  ResultCache slow;
  ASSERT_TRUE(slow.Open(Path(), "same"));
  EXPECT_EQ(slow.Files().size(), 1U);
  ASSERT_TRUE(Store("b", "B"));
  EXPECT_FALSE(slow.Begin());
  EXPECT_EQ(slow.Error(), DatabaseError::kNone);
  slow.Close();
  EXPECT_EQ(Content(), std::string(kA) + kB + "after b");
}

TEST_F(ResultCacheTest, TwoNewCachesDoNotMix) {
  ResultCache slow;
  ASSERT_TRUE(slow.Open(Path(), "same"));
  ASSERT_TRUE(RunInChild([&] { return Store("a", "A") ? 0 : 1; }) == 0);
  ASSERT_TRUE(slow.Begin());
  EXPECT_TRUE(slow.Commit());
  EXPECT_EQ(Content(), std::string(kA) + "after a");
}

TEST_F(ResultCacheTest, SurvivesDamageAnywhere) {
  ASSERT_TRUE(Store("a", std::string(100000, 'A')));
  const std::string sound = ReadFile(Path()).value();
  const std::string expected = Content();
  for (std::size_t at = 0; at < sound.size(); at += 997) {
    std::string damaged = sound;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x15);
    WriteFile(Path(), damaged);
    ResultCache cache;
    const bool isOpen = cache.Open(Path(), "same");
    std::string result;
    for (const CachedFile& file : cache.Files()) result = cache.Blob(file.id, BlobKind::kResult);
    // Either nothing, with a report, or what was stored.
    const bool isReported =
        !isOpen || cache.WasDamaged() || cache.IsNew() || cache.Error() == DatabaseError::kDamaged;
    EXPECT_TRUE(isReported || result == std::string(100000, 'A')) << at;
    cache.RemoveFile();
  }
  for (const std::size_t size : {std::size_t{0}, std::size_t{10}, sound.size() / 2}) {
    WriteFile(Path(), sound.substr(0, size));
    ResultCache cache;
    cache.Open(Path(), "same");
    cache.Files();
    EXPECT_TRUE(cache.IsNew() || cache.Error() == DatabaseError::kDamaged) << size;
    cache.RemoveFile();
    ASSERT_TRUE(Store("a", std::string(100000, 'A')));
    EXPECT_EQ(Content(), expected);
    std::filesystem::remove(Path());
  }
}

TEST_F(ResultCacheTest, FailsToCommitWithoutRoomAndKeepsTheFormerState) {
  ASSERT_TRUE(Store("a", "A"));
  EXPECT_EQ(RunInChild([&] {
              std::signal(SIGXFSZ, SIG_IGN);
              const rlimit limit{200000, 200000};
              setrlimit(RLIMIT_FSIZE, &limit);
              return Store("b", std::string(1000000, 'x')) ? 1 : 0;
            }),
            0);
  EXPECT_EQ(Content(), std::string(kA) + "after a");
}

TEST_F(ResultCacheTest, CannotBeWhereNoFileCanBe) {
  WriteFile(scratch.Path("cache"), "a file");
  ResultCache cache;
  EXPECT_FALSE(cache.Open(Path(), "same"));
  EXPECT_EQ(cache.Error(), DatabaseError::kOther);
}

TEST_F(ResultCacheTest, LeavesNoFilesOfOtherNames) {
  ASSERT_TRUE(Store("a", "A"));
  ASSERT_TRUE(Store("b", "B"));
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(scratch.Path("cache"))) {
    names.push_back(entry.path().filename());
  }
  EXPECT_EQ(names, std::vector<std::string>{"tree.db"});
}

}  // namespace
}  // namespace vexltags
