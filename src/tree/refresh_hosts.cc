// SPDX-License-Identifier: MIT
// Has other machines read files.
#include <limits.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "base/path_resolver.h"
#include "base/paths.h"
#include "tree/host_worker.h"
#include "tree/hosts.h"
#include "tree/refresh.h"

namespace vexltags::tree {
namespace {

constexpr std::size_t kTasksPerHost = 6;
constexpr std::int64_t kSmallestTask = 200000;
/// What any machine can read in a second, in bytes of source.
constexpr std::int64_t kLeastRate = 200000;
constexpr int kLeastSeconds = 30;
constexpr std::int64_t kFileCost = 4096;

}  // namespace

void Refresh::ReadOnHosts(std::vector<PooledRequest>& requests, const PoolEvents& events) {
  HostSettings settings;
  settings.hosts = options.hosts;

  HostTask task;
  char folder[PATH_MAX];
  if (getcwd(folder, sizeof folder) == nullptr) return;
  task.folder = folder;
  task.isExact = options.isExact;
  task.sendsFiles = options.sendsFiles;
  if (!options.isExact) task.learned = static_cast<std::uint32_t>(learnedOrder.size());
  AppendHostTask(settings.start, task);
  for (std::uint32_t i = 0; i < task.learned; ++i) {
    AppendFrame(settings.start, learnedOrder[i], FactsOf(learnedOrder[i]).value_or(""));
  }
  cachedFacts.clear();

  std::int64_t total = 0;
  for (const PooledRequest& request : requests) total += request.cost + kFileCost;
  const std::int64_t share = std::max(
      kSmallestTask, total / static_cast<std::int64_t>(kTasksPerHost * settings.hosts.size()) + 1);
  settings.seconds = kLeastSeconds + static_cast<int>(share / kLeastRate);
  std::vector<std::string> tasks;
  std::int64_t cost = share;
  PathResolver resolver;
  std::string buffer;
  for (const PooledRequest& request : requests) {
    const std::string& path = request.request.job.path;
    std::optional<std::string_view> text;
    if (options.sendsFiles) {
      text = ReadSource(path, buffer);
      if (!text) continue;
    }
    if (cost >= share) {
      tasks.emplace_back();
      cost = 0;
    }
    cost += request.cost + kFileCost;
    AppendRequest(tasks.back(), request.request);
    const std::string resolved = resolver.Resolve(path);
    AppendFrame(tasks.back(), EscapePath(CanonicalizeHome(resolved.c_str(), true)),
                text.value_or(""));
  }
  std::vector<bool> isAnswered(files.size());
  HostEvents hostEvents;
  hostEvents.onTick = events.onTick;
  hostEvents.onProblem = [this](const std::string& problem) {
    progress.Clear();
    std::fprintf(stderr, "vexltags-tree: %s\n", problem.c_str());
  };
  hostEvents.onOutput = [&](std::string_view output) {
    Answer answer;
    for (Frame frame; TakeFrame(output, frame) && ReadAnswer(frame, answer);) {
      if (answer.index >= files.size() || isAnswered[answer.index] ||
          answer.result.info.status != FileStatus::kRead) {
        continue;
      }
      isAnswered[answer.index] = true;
      events.onAnswer(std::move(answer));
    }
  };
  RunOnHosts(settings, tasks, hostEvents);
  std::erase_if(requests, [&isAnswered](const PooledRequest& request) {
    return isAnswered[request.request.index];
  });
}

}  // namespace vexltags::tree
