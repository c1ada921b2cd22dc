// SPDX-License-Identifier: MIT
// A thread that calls back when a deadline passes without being moved.
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

/// Calls a function once when `ReArm` stays away for longer than a limit. Before the first `ReArm`
/// nothing is due. Safe to use from several threads.
///
/// The object must be owned by a `shared_ptr`: the thread reaches it through a weak reference and
/// keeps it alive while it runs. No run of the program makes one; its time limits work by polling.
class WatchDog : public std::enable_shared_from_this<WatchDog> {
 public:
  using Duration = std::chrono::duration<std::int64_t, std::micro>;

  /// Starts nothing: appends to `startup` the function that starts the thread, detached. The object
  /// must exist when that function is called; it throws `std::system_error` with the text "thread
  /// constructor failed" if there can be no thread. `onTimeout` may be empty.
  WatchDog(std::vector<std::function<void()>>& startup, Duration timeLimit,
           const std::function<void()>& onTimeout);

  /// Moves the deadline to the limit from now. Returns the time since the last call, none for the
  /// first. The argument says where the caller stands and is not used.
  std::optional<Duration> ReArm(const std::string& position);
  /// Makes `Run` return without calling back.
  void Quit();
  /// Replaces the function that `Run` calls; empty for none.
  void SetAborter(const std::function<void()>& newAborter);
  /// The thread's loop: returns after `Quit`, or after a deadline has passed and the function was
  /// called. The function is called without the lock, so it may use this object. With a limit of 0
  /// or less it polls without rest.
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
