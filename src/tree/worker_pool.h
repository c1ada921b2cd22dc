// SPDX-License-Identifier: MIT
// Distributes files among worker processes.
#pragma once

#include <sys/types.h>

#include <atomic>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "thorough/session.h"
#include "tree/answer_store.h"
#include "tree/messages.h"

namespace vexltags::tree {

/// A request and its estimated cost in bytes of source.
struct PooledRequest {
  Request request;
  std::int64_t cost = 0;
};

/// Receives the answers of workers.
struct PoolEvents {
  /// Takes an answer. A file whose worker died has the status `kDied`.
  std::function<void(Answer&& answer)> onAnswer;
  /// Called from time to time, also while there is no answer; false ends the work.
  std::function<bool()> onTick;
};

/// How long to wait before looking for answers, if nothing else waits for one.
inline constexpr int kPauseMilliseconds = 20;

/// Where the bytes of answers are.
using AnswerStores = std::deque<AnswerStore>;

/// Answers requests in worker processes, forked from this one, which share what a session has
/// learned. A worker takes one request after the other. If it dies, that costs the file that it was
/// reading, and another one takes its place.
class WorkerPool {
 public:
  /// Starts up to `count` workers for `requests`, which are answered in about this order, large
  /// ones first. `session`, null to read by the grammars alone, and `stores` must outlive the
  /// object. Answers refer to `stores`.
  WorkerPool(const std::vector<PooledRequest>& requests, int count, thorough::Session* session,
             AnswerStores& stores, PoolEvents events);
  /// Ends all workers.
  ~WorkerPool();
  WorkerPool(const WorkerPool&) = delete;
  WorkerPool& operator=(const WorkerPool&) = delete;

  /// Waits for at most `milliseconds`, and passes on what answers there are. Returns false if there
  /// is nothing left to wait for: `IsDone` tells whether everything is answered.
  bool Pump(int milliseconds);
  bool IsDone() const { return unanswered == 0; }

 private:
  struct Worker {
    pid_t process = -1;
    int pipe = -1;                 ///< From the worker; at its end if the worker is.
    AnswerStore* store = nullptr;  ///< Of which `taken` bytes have been read.
    std::size_t taken = 0;
    std::string received;  ///< From the pipe.
  };

  void Start(Worker& worker);
  [[noreturn]] void Serve(const Worker& worker, int output);
  /// Waits until the process has ended.
  static void Stop(Worker& worker, bool kills);
  /// Passes on what a worker has answered. False if what it wrote makes no sense.
  bool Take(Worker& worker);
  /// Takes the answers at the start of `bytes` off it.
  bool TakeAnswers(std::string_view& bytes, bool isKept);
  /// Reads what is in the pipe of a worker; false at its end.
  static bool ReadPipe(Worker& worker);
  /// Clears up after a worker that has ended or has to, and starts another one if there is more.
  void Replace(Worker& worker);
  void Finish(std::uint32_t number, Answer&& answer);
  std::atomic<std::uint32_t>& Next() const { return shared[0]; }
  std::atomic<std::uint32_t>& CurrentOf(const Worker& worker) const {
    return shared[1 + static_cast<std::size_t>(&worker - workers.data())];
  }

  std::vector<Request> requests;
  std::size_t largeCount = 0;  ///< How many large ones come first.
  std::vector<bool> isAnswered;
  std::size_t unanswered = 0;
  thorough::Session* session;
  AnswerStores& stores;
  PoolEvents events;
  std::vector<Worker> workers;
  /// In memory that all processes share: the number of the first request that no worker has, then
  /// that of the request that each worker has.
  std::atomic<std::uint32_t>* shared = nullptr;
  int failures = 0;
};

/// Answers all `requests`. Returns false if no worker could be started or `onTick` ended the work;
/// what is not answered then has no answer.
bool RunInWorkers(const std::vector<PooledRequest>& requests, int count, thorough::Session* session,
                  AnswerStores& stores, const PoolEvents& events);

}  // namespace vexltags::tree
