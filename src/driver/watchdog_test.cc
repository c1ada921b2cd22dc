// SPDX-License-Identifier: MIT
// Tests of the watchdog, without assertions about speed.
#include "driver/watchdog.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

namespace vexltags {
namespace {

using namespace std::chrono_literals;

using Startup = std::vector<std::function<void()>>;

constexpr WatchDog::Duration kNever = std::chrono::hours(24);

void WaitUntil(const std::function<bool()>& condition) {
  while (!condition()) std::this_thread::sleep_for(100us);
}

TEST(WatchDog, AppendsAFunctionWithoutStartingAThread) {
  Startup startup(1, [] {});
  std::atomic<int> calls = 0;
  const auto watchDog = std::make_shared<WatchDog>(startup, 0us, [&] { ++calls; });
  EXPECT_EQ(startup.size(), 2U);
  watchDog->ReArm("");
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(watchDog.use_count(), 1);
}

TEST(WatchDog, CallsTheFunctionOnceAfterTheLimit) {
  Startup startup;
  std::atomic<int> calls = 0;
  const auto watchDog = std::make_shared<WatchDog>(startup, 1ms, [&] { ++calls; });
  const auto start = std::chrono::steady_clock::now();
  watchDog->ReArm("");
  watchDog->Run();
  EXPECT_EQ(calls, 1);
  EXPECT_GE(std::chrono::steady_clock::now() - start, 1ms);
}

TEST(WatchDog, CallsTheFunctionImmediatelyWithoutALimit) {
  Startup startup;
  int calls = 0;
  const auto watchDog = std::make_shared<WatchDog>(startup, 0us, [&] { ++calls; });
  watchDog->ReArm("");
  watchDog->Run();
  EXPECT_EQ(calls, 1);
}

TEST(WatchDog, WaitsForTheFirstReArm) {
  Startup startup;
  std::atomic<int> calls = 0;
  const auto watchDog = std::make_shared<WatchDog>(startup, 1us, [&] { ++calls; });
  std::thread thread([&] { watchDog->Run(); });
  std::this_thread::sleep_for(5ms);
  EXPECT_EQ(calls, 0);
  watchDog->ReArm("");
  thread.join();
  EXPECT_EQ(calls, 1);
}

TEST(WatchDog, QuitsWithoutCallingTheFunction) {
  Startup startup;
  int calls = 0;
  const auto watchDog = std::make_shared<WatchDog>(startup, 1us, [&] { ++calls; });
  watchDog->ReArm("");
  watchDog->Quit();
  watchDog->Run();
  EXPECT_EQ(calls, 0);
}

TEST(WatchDog, WakesUpForQuit) {
  Startup startup;
  const auto watchDog = std::make_shared<WatchDog>(startup, kNever, nullptr);
  watchDog->ReArm("");
  std::thread thread([&] { watchDog->Run(); });
  std::this_thread::sleep_for(1ms);
  watchDog->Quit();
  thread.join();
}

TEST(WatchDog, DoesNotWaitAfterQuit) {
  Startup startup;
  const auto watchDog = std::make_shared<WatchDog>(startup, kNever, nullptr);
  watchDog->Quit();
  watchDog->Run();
}

TEST(WatchDog, ReturnsWithoutAnAborter) {
  Startup startup;
  const auto watchDog = std::make_shared<WatchDog>(startup, 1us, nullptr);
  watchDog->ReArm("");
  watchDog->Run();
}

TEST(WatchDog, CallsTheLatestAborter) {
  Startup startup;
  std::string called;
  const auto watchDog = std::make_shared<WatchDog>(startup, 1us, [&] { called += "first"; });
  watchDog->SetAborter([&] {
    called += "second";
    watchDog->Quit();  // The lock is not held here.
  });
  watchDog->ReArm("");
  watchDog->Run();
  EXPECT_EQ(called, "second");
}

TEST(WatchDog, MeasuresFromTheLastReArm) {
  Startup startup;
  const auto watchDog = std::make_shared<WatchDog>(startup, kNever, nullptr);
  EXPECT_FALSE(watchDog->ReArm("").has_value());
  std::this_thread::sleep_for(2ms);
  const auto since = watchDog->ReArm("somewhere");
  ASSERT_TRUE(since.has_value());
  EXPECT_GE(*since, 2ms);
}

TEST(WatchDog, StartsADetachedThreadThatKeepsItAlive) {
  Startup startup;
  std::atomic<int> calls = 0;
  std::weak_ptr<WatchDog> reference;
  {
    const auto watchDog = std::make_shared<WatchDog>(startup, 1us, [&] { ++calls; });
    reference = watchDog;
    startup.at(0)();
    WaitUntil([&] { return reference.use_count() > 1; });
    watchDog->ReArm("");
  }
  WaitUntil([&] { return reference.expired(); });
  EXPECT_EQ(calls, 1);
}

TEST(WatchDog, StartsNoThreadForAnObjectWithoutOwner) {
  Startup startup;
  std::atomic<int> calls = 0;
  WatchDog watchDog(startup, 0us, [&] { ++calls; });
  watchDog.ReArm("");
  startup.at(0)();
  std::this_thread::sleep_for(5ms);
  EXPECT_EQ(calls, 0);
}

/// Sets the default stack size of threads to an impossible value, so that no thread can start.
class NoThreads {
 public:
  NoThreads() {
    pthread_getattr_default_np(&saved);
    pthread_attr_t huge;
    pthread_attr_init(&huge);
    pthread_attr_setstacksize(&huge, std::size_t{1} << 50);
    pthread_setattr_default_np(&huge);
    pthread_attr_destroy(&huge);
  }
  ~NoThreads() {
    pthread_setattr_default_np(&saved);
    pthread_attr_destroy(&saved);
  }

 private:
  pthread_attr_t saved;
};

TEST(WatchDog, ThrowsIfNoThreadCanStart) {
  Startup startup;
  const auto watchDog = std::make_shared<WatchDog>(startup, kNever, nullptr);
  std::string text;
  {
    const NoThreads guard;
    try {
      startup.at(0)();
    } catch (const std::system_error& error) {
      text = error.what();
    }
  }
  EXPECT_TRUE(text.starts_with("thread constructor failed")) << text;
  watchDog->Quit();
}

}  // namespace
}  // namespace vexltags
