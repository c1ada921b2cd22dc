// SPDX-License-Identifier: MIT
// Implements the watchdog with a condition variable.
#include "driver/watchdog.h"

#include <system_error>
#include <thread>

namespace vexltags {
namespace {

/// Runs the watchdog that `reference` refers to on a new thread.
void StartThread(std::weak_ptr<WatchDog> reference) {
  try {
    std::thread([reference = std::move(reference)] {
      if (const std::shared_ptr<WatchDog> watchDog = reference.lock()) watchDog->Run();
    }).detach();
  } catch (const std::system_error& error) {
    throw std::system_error(error.code(), "thread constructor failed");
  }
}

}  // namespace

WatchDog::WatchDog(std::vector<std::function<void()>>& startup, Duration timeLimit,
                   const std::function<void()>& onTimeout)
    : limit(timeLimit), aborter(onTimeout) {
  startup.emplace_back([this] { StartThread(weak_from_this()); });
}

std::optional<WatchDog::Duration> WatchDog::ReArm(const std::string& /*position*/) {
  const std::lock_guard lock(mutex);
  const Clock::time_point now = Clock::now();
  std::optional<Duration> sinceLast;
  if (armedAt) sinceLast = std::chrono::duration_cast<Duration>(now - *armedAt);
  armedAt = now;
  wake.notify_all();
  return sinceLast;
}

void WatchDog::Quit() {
  const std::lock_guard lock(mutex);
  quit = true;
  wake.notify_all();
}

void WatchDog::SetAborter(const std::function<void()>& newAborter) {
  const std::lock_guard lock(mutex);
  aborter = newAborter;
}

void WatchDog::Run() {
  for (;;) {
    std::function<void()> due;
    {
      std::unique_lock lock(mutex);
      // A `Quit` before the wait has notified no thread, so it must be checked first.
      if (!quit && limit > Duration::zero()) wake.wait_for(lock, limit);
      if (quit) return;
      if (!armedAt || Clock::now() - *armedAt < limit) continue;
      due = aborter;
    }
    if (due) due();
    return;
  }
}

}  // namespace vexltags
