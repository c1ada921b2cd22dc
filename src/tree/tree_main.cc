// SPDX-License-Identifier: MIT
// The command line of vexltags-tree.
#include <features.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "engine/stack_guard.h"
#include "tree/host_worker.h"
#include "tree/refresh.h"
#include "tree/tree_options.h"
#include "tree/watch.h"

namespace vexltags::tree {
namespace {

int List(const TreeOptions& options) {
  const SourceList list = ListSources(options.folders, options.sources);
  for (const std::string& problem : list.problems) {
    std::fprintf(stderr, "vexltags-tree: %s\n", problem.c_str());
  }
  for (const std::string& missing : list.missing) {
    std::fprintf(stderr, "vexltags-tree: %s\n", missing.c_str());
  }
  for (const Source& source : list.sources) {
    // Paths are relative to the folder that the user is in.
    const std::string path = options.calledFrom.empty()
                                 ? source.path
                                 : std::filesystem::absolute(source.path)
                                       .lexically_relative(options.calledFrom)
                                       .string();
    std::puts(path.c_str());
  }
  return list.missing.empty() && std::fflush(stdout) == 0 ? kDone : kFailed;
}

/// Lets memory that is freed be used again, instead of giving it back and asking for it anew with
/// each of ten thousand files. All threads share one heap.
void KeepFreedMemory() {
#ifdef __GLIBC__
  constexpr int kLarge = 1 << 26;
  constexpr int kAtOnce = 1 << 22;
  mallopt(M_ARENA_MAX, 1);
  mallopt(M_TRIM_THRESHOLD, kLarge);
  mallopt(M_TOP_PAD, kAtOnce);
  mallopt(M_MMAP_THRESHOLD, kLarge / 4);
#endif
}

int Main(int argc, const char* const* argv) {
  // Failed writes then return errors.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  KeepFreedMemory();
  int status = kDone;
  const std::optional<TreeOptions> options = ParseTreeOptions(argc, argv, status);
  if (!options) return status;
  if (options->isWorker) return ServeMachine();
  if (options->listsOnly) return List(*options);
  if (options->watches) return Watch(*options);
  // It is not destroyed, since freeing all that it knows takes longer than ending the process.
  static Refresh* const run = new Refresh(*options);
  return run->Run();
}

}  // namespace
}  // namespace vexltags::tree

int main(int argc, char** argv) {
  return vexltags::RunOnLargeStack([argc, argv] { return vexltags::tree::Main(argc, argv); });
}
