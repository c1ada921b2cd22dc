// SPDX-License-Identifier: MIT
// Starts a program, and ends it when its time is up.
#include "tree/run_program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>

namespace vexltags::tree {
namespace {

using std::chrono::seconds;
using std::chrono::steady_clock;

constexpr auto kTick = std::chrono::milliseconds(100);
constexpr auto kGrace = seconds(1);
/// GNU parallel waits for what runs at the first one, and stops that at the second.
constexpr int kPoliteSignals = 2;

/// Returns the process, or -1 if it could not be started.
pid_t Start(const std::vector<std::string>& arguments, const std::string& output) {
  std::vector<char*> argv;
  argv.reserve(arguments.size() + 1);
  for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  sigset_t defaults;
  sigemptyset(&defaults);
  sigaddset(&defaults, SIGPIPE);
  sigaddset(&defaults, SIGXFSZ);
  posix_spawnattr_setsigdefault(&attributes, &defaults);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
  pid_t process = -1;
  if (posix_spawnp(&process, argv[0], &actions, &attributes, argv.data(), environ) != 0) {
    process = -1;
  }
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  return process;
}

}  // namespace

bool RunProgram(const std::vector<std::string>& arguments, const std::string& output,
                int mostSeconds, const std::function<bool()>& onTick) {
  const pid_t process = Start(arguments, output);
  if (process < 0) return false;
  auto nextSignal = steady_clock::now() + seconds(mostSeconds);
  int signals = 0;
  while (waitpid(process, nullptr, WNOHANG) == 0) {
    const bool isOver = steady_clock::now() >= nextSignal;
    if (isOver || (signals == 0 && !onTick())) {
      kill(process, signals < kPoliteSignals ? SIGTERM : SIGKILL);
      ++signals;
      nextSignal = steady_clock::now() + kGrace;
    }
    std::this_thread::sleep_for(kTick);
  }
  return true;
}

}  // namespace vexltags::tree
