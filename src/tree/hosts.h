// SPDX-License-Identifier: MIT
// Distributes tasks among machines through GNU parallel.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vexltags::tree {

/// What distributing needs to know.
struct HostSettings {
  std::vector<std::string> hosts;  ///< As GNU parallel takes them.
  int seconds = 0;                 ///< After which a task that is not done has failed.
  std::string start;               ///< What the input of each task begins with.
};

/// Calls that are made while tasks are done.
struct HostEvents {
  /// Takes what a task printed, unsealed.
  std::function<void(std::string_view)> onOutput;
  /// Takes a message about a host.
  std::function<void(const std::string&)> onProblem;
  /// Is called from time to time; false ends the work.
  std::function<bool()> onTick;
};

/// Runs each of `tasks`, which with the start before it and sealed is an input for `vexltags-tree
/// --worker`, on one of the hosts, as many at once as each has processors. What fails on one is
/// tried on those on which nothing failed, as long as there are any. Hosts on which this version of
/// the program does not answer are left out.
void RunOnHosts(const HostSettings& settings, const std::vector<std::string>& tasks,
                const HostEvents& events);

}  // namespace vexltags::tree
