// SPDX-License-Identifier: MIT
// Keeps the tags file fresh while files are edited. The kernel reports changes in the folders of
// the sources and in those above them, and every run decides itself what is to be done.
#include "tree/watch.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include "sources/path_filter.h"
#include "tree/refresh.h"

namespace vexltags::tree {
namespace {

/// After a change, how long to wait for more that belong to it.
constexpr int kQuietMilliseconds = 60;
constexpr int kMostWaits = 10;
/// How often to look where the kernel cannot tell.
constexpr int kPollMilliseconds = 700;

volatile std::sig_atomic_t isStopped = 0;
/// A signal can arrive in any thread, so it writes to a pipe that the waiting one polls.
int stopPipe[2] = {-1, -1};
void Stop(int) {
  isStopped = 1;
  const ssize_t written = write(stopPipe[1], "", 1);
  static_cast<void>(written);
}

class Watcher {
 public:
  explicit Watcher(const TreeOptions& options)
      : options(options), queue(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    const std::filesystem::path output = options.output;
    ownName = output.filename();
  }
  ~Watcher() {
    if (queue >= 0) close(queue);
  }
  Watcher(const Watcher&) = delete;
  Watcher& operator=(const Watcher&) = delete;

  /// Watches the folders of all sources. To be called before they are read, so that no change in
  /// between is missed.
  void AddFolders() {
    const SourceList list = ListSources(options.folders, options.sources);
    std::vector<std::string> roots = options.folders;
    if (roots.empty()) roots.emplace_back(".");
    for (const std::string& root : roots) AddTree(root);
    for (const Source& source : list.sources) {
      std::string folder = source.path;
      // Each folder above, too, since new ones can appear in it.
      for (std::size_t slash; (slash = folder.rfind('/')) != std::string::npos && slash > 0;) {
        folder.resize(slash);
        if (!AddFolder(folder)) break;
      }
    }
  }

  /// Waits for a change and for its end; false if the process is to stop.
  bool Wait() {
    bool hasChange = false;
    for (int waits = 0; isStopped == 0 && waits < kMostWaits;) {
      pollfd entries[] = {{queue, POLLIN, 0}, {stopPipe[0], POLLIN, 0}};
      const int limit = hasChange ? kQuietMilliseconds : isComplete ? -1 : kPollMilliseconds;
      const int count = poll(entries, std::size(entries), limit);
      if (count < 0 && errno != EINTR) return false;
      if (count == 0) return true;
      if (count > 0 && ReadEvents()) hasChange = true;
      if (hasChange) ++waits;
    }
    return isStopped == 0;
  }

 private:
  /// Watches all folders in and below `root`, where sources can appear, but those that a search
  /// leaves out.
  void AddTree(const std::string& root) {
    AddFolder(root);
    IgnorePatterns patterns;
    for (const std::string& pattern : DefaultExcludes()) patterns.Add(pattern);
    PathFilter filter(patterns);
    std::error_code error;
    const auto skip = std::filesystem::directory_options::skip_permission_denied;
    std::filesystem::recursive_directory_iterator it(root, skip, error);
    while (!error && it != std::filesystem::recursive_directory_iterator()) {
      if (it->is_directory(error) && !it->is_symlink(error)) {
        const std::string path = it->path().lexically_relative(root);
        if (filter.Judge(path, true) == PathVerdict::kExcluded) {
          it.disable_recursion_pending();
        } else {
          AddFolder(it->path().lexically_normal());
        }
      }
      it.increment(error);
    }
  }

  /// False if it is watched already.
  bool AddFolder(const std::string& folder) {
    if (!folders.insert(folder).second) return false;
    const int number = inotify_add_watch(queue, folder.c_str(),
                                         IN_CLOSE_WRITE | IN_MOVED_FROM | IN_MOVED_TO | IN_CREATE |
                                             IN_DELETE | IN_DELETE_SELF | IN_ATTRIB | IN_ONLYDIR);
    if (number >= 0 || errno == ENOTDIR || errno == ENOENT) return true;
    if (isComplete) {
      std::fputs("vexltags-tree: too many folders to watch; looking for changes all the time\n",
                 stderr);
    }
    isComplete = false;
    return true;
  }

  /// Takes all events off the queue and returns whether one may matter.
  bool ReadEvents() {
    bool matters = false;
    alignas(inotify_event) char buffer[1 << 14];
    for (ssize_t count; (count = read(queue, buffer, sizeof buffer)) > 0;) {
      for (ssize_t at = 0; at < count;) {
        const auto* const event = reinterpret_cast<const inotify_event*>(buffer + at);
        const std::string_view name = event->len > 0 ? event->name : "";
        // A folder that is created again has to be watched again.
        if ((event->mask & (IN_ISDIR | IN_DELETE_SELF | IN_IGNORED | IN_Q_OVERFLOW)) != 0) {
          folders.clear();
        }
        // A file without a name, as the new tags file is at first, has one that begins with `#`.
        matters = matters || !(name.starts_with(ownName) || name.starts_with('#'));
        at += static_cast<ssize_t>(sizeof *event + event->len);
      }
    }
    return matters;
  }

  const TreeOptions& options;
  int queue;
  std::string ownName;
  std::set<std::string> folders;
  bool isComplete = true;
};

}  // namespace

int Watch(const TreeOptions& options) {
  if (pipe2(stopPipe, O_CLOEXEC | O_NONBLOCK) != 0) return kFailed;
  struct sigaction action = {};
  action.sa_handler = Stop;
  sigaction(SIGINT, &action, nullptr);
  sigaction(SIGTERM, &action, nullptr);
  Watcher watcher(options);
  int status = kDone;
  do {
    watcher.AddFolders();
    if (isStopped == 0) status = Refresh(options, [] { return isStopped == 0; }).Run();
  } while (watcher.Wait());
  return isStopped != 0 ? kDone : status;
}

}  // namespace vexltags::tree
