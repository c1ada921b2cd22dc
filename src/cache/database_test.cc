// SPDX-License-Identifier: MIT
// Tests of the operations on a database file.
#include "cache/database.h"

#include <gtest/gtest.h>

#include "testing/scratch.h"

namespace vexltags {
namespace {

using testing_support::ScratchFolder;
using testing_support::WriteFile;

TEST(Database, KeepsRows) {
  const ScratchFolder scratch;
  Database database;
  ASSERT_TRUE(database.Open(scratch.Path("a.db"), true));
  ASSERT_TRUE(database.Execute("CREATE TABLE t(a INTEGER, b BLOB)"));
  const std::string bytes("x\0y", 3);
  ASSERT_TRUE(database.Prepare("INSERT INTO t VALUES(?, ?)").Bind(-7).BindBlob(bytes).Run());
  ASSERT_TRUE(database.Prepare("INSERT INTO t VALUES(?, ?)").Bind(8).BindBlob("").Run());
  {
    Statement rows = database.Prepare("SELECT a, b FROM t ORDER BY a");
    ASSERT_TRUE(rows.Step());
    EXPECT_EQ(rows.Number(0), -7);
    EXPECT_EQ(rows.Text(1), bytes);
    ASSERT_TRUE(rows.Step());
    EXPECT_EQ(rows.Text(1), "");
    EXPECT_FALSE(rows.Step());
  }
  EXPECT_TRUE(database.Close());
}

TEST(Database, DistinguishesADamagedFileFromOneThatCannotBeOpened) {
  const ScratchFolder scratch;
  WriteFile(scratch.Path("a.db"), std::string(5000, 'x'));
  Database damaged;
  damaged.Open(scratch.Path("a.db"), false);
  EXPECT_FALSE(damaged.Execute("SELECT * FROM t"));
  EXPECT_EQ(damaged.Error(), DatabaseError::kDamaged);
  EXPECT_NE(damaged.Message(), "");
  EXPECT_FALSE(damaged.Prepare("SELECT 1").Step()) << "nothing works after an error";

  Database missing;
  EXPECT_FALSE(missing.Open(scratch.Path("no/b.db"), true));
  EXPECT_EQ(missing.Error(), DatabaseError::kOther);
  missing.Reset();
  EXPECT_TRUE(missing.Open(scratch.Path("b.db"), true));
}

}  // namespace
}  // namespace vexltags
