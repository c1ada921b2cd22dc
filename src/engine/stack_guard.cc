// SPDX-License-Identifier: MIT
// Allocates the large stack and sets its limit.
#include "engine/stack_guard.h"

#include <pthread.h>
#include <sys/mman.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstddef>

namespace vexltags {
namespace {

constexpr std::size_t kMebi = std::size_t{1} << 20;
constexpr std::size_t kLargest = kMebi << 16;
constexpr std::size_t kSmallest = 16 * kMebi;
/// Reserved for functions called by rules, which do not check the limit.
constexpr std::size_t kReserve = kMebi;

struct Call {
  const std::function<int()>& work;
  int result;
};

void* Run(void* argument) {
  auto* call = static_cast<Call*>(argument);
  call->result = call->work();
  return nullptr;
}

std::size_t LimitOf(int resource) {
  rlimit limit;
  if (getrlimit(resource, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return kLargest * 4;
  return limit.rlim_cur;
}

bool RunOnThread(char* memory, std::size_t size, Call& call) {
  pthread_attr_t attributes;
  if (pthread_attr_init(&attributes) != 0) return false;
  pthread_t thread;
  stackLimit = memory + kReserve;
  const bool started = pthread_attr_setstack(&attributes, memory, size) == 0 &&
                       pthread_create(&thread, &attributes, Run, &call) == 0;
  if (started) pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
  stackLimit = nullptr;
  return started;
}

}  // namespace

int RunOnLargeStack(const std::function<int()>& work) {
  Call call{work, 0};
  const std::size_t most = std::min({kLargest, LimitOf(RLIMIT_AS) / 4, LimitOf(RLIMIT_DATA) / 4});
  for (std::size_t size = kLargest; size >= kSmallest; size /= 2) {
    if (size > most) continue;
    void* memory = mmap(nullptr, size, PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_STACK, -1, 0);
    if (memory == MAP_FAILED) continue;
    const bool done = RunOnThread(static_cast<char*>(memory), size, call);
    munmap(memory, size);
    if (done) return call.result;
  }
  const std::size_t own = std::min(LimitOf(RLIMIT_STACK), 8 * kMebi);
  const char* here = static_cast<const char*>(__builtin_frame_address(0));
  stackLimit = own > 2 * kReserve ? here - (own - kReserve) : nullptr;
  call.result = work();
  stackLimit = nullptr;
  return call.result;
}

}  // namespace vexltags
