// SPDX-License-Identifier: MIT
// A thread that calls a function when a deadline is not extended in time.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace vexltags {

/// Calls a function once if `ReArm` is not called for longer than a limit. The deadline is only set
/// by the first `ReArm`. Thread-safe.
///
/// The object must be owned by a `shared_ptr`: the thread holds a weak reference until it runs and
/// then keeps the object alive. The program itself never creates a watchdog; its time limits use
/// polling.
class WatchDog : public std::enable_shared_from_this<WatchDog> {
 public:
  using Duration = std::chrono::duration<std::int64_t, std::micro>;

  /// Appends to `startup` a function that starts the thread, detached; does not start it. The
  /// object must still exist when that function is called. The function throws `std::system_error`
  /// with the text "thread constructor failed" if no thread can be created. `onTimeout` can be
  /// empty.
  WatchDog(std::vector<std::function<void()>>& startup, Duration timeLimit,
           const std::function<void()>& onTimeout);

  /// Sets the deadline to the current time plus the limit. Returns the time since the last call, or
  /// nothing for the first. The argument describes the position of the caller and is not used.
  std::optional<Duration> ReArm(const std::string& position);
  /// Makes `Run` return without calling the function.
  void Quit();
  /// Replaces the function that `Run` calls; empty for none.
  void SetAborter(const std::function<void()>& newAborter);
  /// The thread's loop: returns after `Quit`, or after a deadline has passed and the function was
  /// called. The lock is not held during that call, so the function can use this object. With a
  /// limit of 0 or less the loop polls continuously.
  void Run();

 private:
  using Clock = std::chrono::steady_clock;

  std::optional<Clock::time_point> armedAt;
  Duration limit;
  bool quit = false;
  std::function<void()> aborter;
  std::mutex mutex;
  std::condition_variable wake;
};

}  // namespace vexltags
