// SPDX-License-Identifier: MIT
// Tests which files are removed from the folder of all caches.
#include "cache/old_caches.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "testing/scratch.h"

namespace vexltags {
namespace {

namespace fs = std::filesystem;

class OldCachesTest : public testing::Test {
 protected:
  void Add(const std::string& name, std::chrono::hours age) {
    testing_support::WriteFile(scratch.Path(name), "x");
    fs::last_write_time(scratch.Path(name), fs::file_time_type::clock::now() - age);
  }
  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(fs::path(scratch.Path("x")).parent_path())) {
      names.insert(entry.path().filename());
    }
    return names;
  }
  void Remove() { RemoveOldCaches(fs::path(scratch.Path("x")).parent_path()); }

  const testing_support::ScratchFolder scratch;
};

TEST_F(OldCachesTest, OnlyUnusedCachesAreRemoved) {
  constexpr std::chrono::hours kHour(1);
  Add("0123456789abcdef.db", kCacheLifetime + kHour);
  Add("0123456789abcdef.db-wal", kHour);
  Add("0123456789abcdef.db-shm", kHour);
  Add("fedcba9876543210.db", kCacheLifetime - kHour);
  Add("fedcba9876543210.db-wal", 2 * kCacheLifetime);
  Add("0123456789abcdef.db.new-77", 25 * kHour);
  Add("0123456789abcdef.db.new-78", 23 * kHour);
  Add("notes.db", 2 * kCacheLifetime);
  Add("0123456789abcdeg.db", 2 * kCacheLifetime);
  Add("0123456789abcdef0.db", 2 * kCacheLifetime);
  Add("0123456789abcdef", 2 * kCacheLifetime);
  Remove();
  EXPECT_EQ(Names(),
            (std::set<std::string>{"fedcba9876543210.db", "fedcba9876543210.db-wal",
                                   "0123456789abcdef.db.new-78", "notes.db", "0123456789abcdeg.db",
                                   "0123456789abcdef0.db", "0123456789abcdef"}));
}

TEST_F(OldCachesTest, AUsedCacheStays) {
  Add("0123456789abcdef.db", 2 * kCacheLifetime);
  NoteUse(scratch.Path("0123456789abcdef.db"));
  Remove();
  EXPECT_EQ(Names().size(), 1U);
}

TEST_F(OldCachesTest, AMissingFolderIsNoProblem) {
  RemoveOldCaches(scratch.Path("missing"));
  NoteUse(scratch.Path("missing"));
  EXPECT_TRUE(Names().empty());
}

}  // namespace
}  // namespace vexltags
