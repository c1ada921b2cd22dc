// SPDX-License-Identifier: MIT
// Distributes files among worker processes. Requests are there when a worker is forked, and a
// number in shared memory says which one is next, so that nothing has to be sent to workers. Their
// answers are in memory too; the pipe from a worker shows that it has ended.
#include "tree/worker_pool.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <new>

#include "tree/worker.h"

namespace vexltags::tree {
namespace {

/// Files of this size are read first: one at the end would keep all others waiting.
constexpr std::int64_t kLargeFile = std::int64_t{1} << 18;
constexpr std::size_t kReadSize = std::size_t{1} << 16;
constexpr int kMostFailures = 100;
constexpr std::uint32_t kNoRequest = UINT32_MAX;

}  // namespace

WorkerPool::WorkerPool(const std::vector<PooledRequest>& all, int count, thorough::Session* session,
                       AnswerStores& stores, PoolEvents events)
    : isAnswered(all.size()),
      unanswered(all.size()),
      session(session),
      stores(stores),
      events(std::move(events)) {
  for (const bool wantsLarge : {true, false}) {
    for (const PooledRequest& request : all) {
      if ((request.cost > kLargeFile) == wantsLarge) requests.push_back(request.request);
    }
    if (wantsLarge) largeCount = requests.size();
  }
  workers.resize(std::min(static_cast<std::size_t>(std::max(count, 1)), requests.size()));
  void* const memory = mmap(nullptr, (1 + workers.size()) * sizeof *shared, PROT_READ | PROT_WRITE,
                            MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) return;
  shared = static_cast<std::atomic<std::uint32_t>*>(memory);
  for (std::size_t i = 0; i <= workers.size(); ++i) new (shared + i) std::atomic<std::uint32_t>(0);
  for (Worker& worker : workers) Start(worker);
}

WorkerPool::~WorkerPool() {
  for (Worker& worker : workers) Stop(worker, !IsDone());
  if (shared != nullptr) munmap(shared, (1 + workers.size()) * sizeof *shared);
}

void WorkerPool::Start(Worker& worker) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return;
  worker.store = &stores.emplace_back();
  worker.store->Create();
  worker.taken = 0;
  worker.received.clear();
  CurrentOf(worker) = kNoRequest;
  const pid_t process = fork();
  if (process == 0) {
    close(ends[0]);
    Serve(worker, ends[1]);
  }
  close(ends[1]);
  if (process < 0) {
    close(ends[0]);
    return;
  }
  worker.process = process;
  worker.pipe = ends[0];
}

void WorkerPool::Serve(const Worker& worker, int output) {
  // Ends with the main process, whatever ends that.
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const rlimit noCore{0, 0};
  setrlimit(RLIMIT_CORE, &noCore);
  for (const Worker& other : workers) {
    if (other.pipe >= 0) close(other.pipe);
  }
  // Signals from a terminal are for the main process, whose end is also the worker's.
  std::signal(SIGINT, SIG_IGN);
  std::signal(SIGTERM, SIG_DFL);
  Work({requests, largeCount, Next(), CurrentOf(worker), *worker.store, output}, session);
  _exit(0);
}

void WorkerPool::Stop(Worker& worker, bool kills) {
  if (worker.pipe >= 0) close(worker.pipe);
  worker.pipe = -1;
  if (worker.process > 0) {
    if (kills) kill(worker.process, SIGKILL);
    while (waitpid(worker.process, nullptr, 0) < 0 && errno == EINTR) {
    }
  }
  worker.process = -1;
  if (worker.store != nullptr) worker.store->Close();
  worker.store = nullptr;
}

bool WorkerPool::Pump(int milliseconds) {
  if (IsDone()) return false;
  std::vector<pollfd> polls;
  for (const Worker& worker : workers) polls.push_back({worker.pipe, POLLIN, 0});
  const bool isRunning =
      std::any_of(workers.begin(), workers.end(), [](const Worker& w) { return w.pipe >= 0; });
  if (!isRunning) return false;
  if (poll(polls.data(), polls.size(), milliseconds) < 0 && errno != EINTR) return false;
  for (std::size_t i = 0; i < workers.size(); ++i) {
    Worker& worker = workers[i];
    if (worker.pipe < 0) continue;
    const bool hasPipe = polls[i].revents != 0;
    // After the end of the pipe there is nothing new in the store.
    const bool hasEnded = hasPipe && !ReadPipe(worker);
    if (!Take(worker) || hasEnded) Replace(worker);
  }
  return !IsDone() && events.onTick();
}

bool WorkerPool::ReadPipe(Worker& worker) {
  char buffer[kReadSize];
  const ssize_t count = read(worker.pipe, buffer, sizeof buffer);
  if (count > 0) worker.received.append(buffer, static_cast<std::size_t>(count));
  return count > 0 || (count < 0 && errno == EINTR);
}

bool WorkerPool::Take(Worker& worker) {
  std::string_view stored = worker.store->From(worker.taken);
  const std::size_t size = stored.size();
  if (!TakeAnswers(stored, true)) return false;
  worker.taken += size - stored.size();
  std::string_view received = worker.received;
  if (!TakeAnswers(received, false)) return false;
  worker.received.erase(0, worker.received.size() - received.size());
  return true;
}

bool WorkerPool::TakeAnswers(std::string_view& bytes, bool isKept) {
  if (IsNoFrame(bytes)) return false;
  for (Frame frame; TakeFrame(bytes, frame);) {
    Answer answer;
    if (!ReadAnswer(frame, answer, isKept)) return false;
    const std::uint32_t number = answer.index;
    if (number >= requests.size() || isAnswered[number]) return false;
    Finish(number, std::move(answer));
  }
  return true;
}

void WorkerPool::Finish(std::uint32_t number, Answer&& answer) {
  isAnswered[number] = true;
  --unanswered;
  answer.index = requests[number].index;
  events.onAnswer(std::move(answer));
}

void WorkerPool::Replace(Worker& worker) {
  Stop(worker, true);
  const std::uint32_t current = CurrentOf(worker);
  if (current < requests.size() && !isAnswered[current]) {
    Answer answer;
    answer.forFacts = requests[current].forFacts;
    answer.result.info.status = FileStatus::kDied;
    Finish(current, std::move(answer));
  } else if (Next() < requests.size() && ++failures > kMostFailures) {
    return;
  }
  if (Next() < requests.size()) return Start(worker);
  const bool isLast =
      std::all_of(workers.begin(), workers.end(), [](const Worker& w) { return w.pipe < 0; });
  if (!isLast || IsDone() || ++failures > kMostFailures) return;
  // A worker died between taking a request and noting it: once more, with what is left.
  std::vector<Request> left;
  for (std::size_t i = 0; i < requests.size(); ++i) {
    if (!isAnswered[i]) left.push_back(requests[i]);
  }
  requests = std::move(left);
  largeCount = 0;
  isAnswered.assign(requests.size(), false);
  Next() = 0;
  Start(worker);
}

bool RunInWorkers(const std::vector<PooledRequest>& requests, int count, thorough::Session* session,
                  AnswerStores& stores, const PoolEvents& events) {
  if (requests.empty()) return true;
  WorkerPool pool(requests, count, session, stores, events);
  while (pool.Pump(kPauseMilliseconds)) {
  }
  return pool.IsDone();
}

}  // namespace vexltags::tree
