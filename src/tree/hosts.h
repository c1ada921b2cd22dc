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
  int jobs = 0;                    ///< At once on each machine; 0 for one for each processor.
  int seconds = 0;                 ///< After which a task that is not done is given to another one.
};

/// Returns the hosts on which this version of the program answers, and passes a message about each
/// of the others to `onProblem`.
std::vector<std::string> UsableHosts(const HostSettings& settings,
                                     const std::function<void(const std::string&)>& onProblem);

/// Runs each of `tasks`, an input for `vexltags-tree --worker`, on one of the hosts; one that fails
/// there is tried on others. Passes the output of each task that was done to `onOutput`. Calls
/// `onProblem` with a message about each host on which a task failed. `onTick` is called from time
/// to time; false ends the work.
void RunOnHosts(const HostSettings& settings, const std::vector<std::string>& tasks,
                const std::function<void(std::string_view)>& onOutput,
                const std::function<void(const std::string&)>& onProblem,
                const std::function<bool()>& onTick);

}  // namespace vexltags::tree
