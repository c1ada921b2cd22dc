// SPDX-License-Identifier: MIT
// Tests of the large stack.
#include "engine/stack_guard.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cstdlib>

namespace vexltags {
namespace {

// Returns how many of `levels` are left when it stops. Each level uses more than a page and reads
// from it after the call, so that the compiler cannot turn the recursion into a loop; where in the
// page depends on the level, so that it cannot leave the rest of the page out.
int Deep(int levels) {
  volatile char page[4096];
  const auto place = static_cast<std::size_t>(levels) % sizeof page;
  page[place] = 1;
  if (levels == 0 || StackIsLow()) return levels;
  const int left = Deep(levels - 1);
  const int one = page[place];
  return left + one - 1;
}

TEST(RunOnLargeStack, ReturnsTheResult) {
  EXPECT_EQ(RunOnLargeStack([] { return 42; }), 42);
  EXPECT_EQ(stackLimit, nullptr);
}

TEST(RunOnLargeStack, GoesDeeperThanTheUsualStack) {
  EXPECT_EQ(RunOnLargeStack([] { return Deep(20000); }), 0);
}

TEST(RunOnLargeStack, StopsAtTheLimitOfASmallAddressSpace) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "address sanitizer needs more addresses than this test leaves";
#endif
  EXPECT_EXIT(
      {
        rlimit limit;
        limit.rlim_cur = limit.rlim_max = 512UL << 20;
        setrlimit(RLIMIT_AS, &limit);
        std::exit(RunOnLargeStack([] { return Deep(1 << 20) > 0 ? 0 : 1; }));
      },
      testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace vexltags
