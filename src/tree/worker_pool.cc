// SPDX-License-Identifier: MIT
// Distributes files among worker processes. Each worker has a few requests in hand, so that it need
// not wait for the next one; towards the end these are few, so that all workers end together.
#include "tree/worker_pool.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <deque>

#include "tree/worker.h"

namespace vexltags::tree {
namespace {

constexpr int kTickMilliseconds = 100;
constexpr std::int64_t kFileCost = 4096;  ///< Of opening a file, in bytes of source.
constexpr std::int64_t kMostInHand = std::int64_t{1} << 19;
constexpr std::size_t kReadSize = std::size_t{1} << 18;
/// Less than a socket holds, so that a worker that is writing an answer cannot be waited for.
constexpr std::size_t kMostRequested = std::size_t{1} << 15;
constexpr int kMostFailures = 100;

struct Worker {
  pid_t process = -1;
  int socket = -1;
  std::deque<std::uint32_t> inHand;  ///< Numbers in `requests`, in the order of their answers.
  std::int64_t cost = 0;             ///< Of what is in hand.
  std::string received;
};

class Pool {
 public:
  Pool(std::span<const PooledRequest> all, int count, thorough::Session* session,
       const PoolEvents& events)
      : requests(all), session(session), events(events) {
    for (const PooledRequest& request : requests) left += request.cost + kFileCost;
    for (std::uint32_t i = 0; i < requests.size(); ++i) queue.push_back(i);
    // Large files first: one at the end would keep all others waiting.
    std::stable_partition(queue.begin(), queue.end(),
                          [this](std::uint32_t i) { return requests[i].cost > kMostInHand; });
    const std::size_t most = std::min(static_cast<std::size_t>(std::max(count, 1)), queue.size());
    workers.resize(most);
  }

  ~Pool() {
    for (Worker& worker : workers) Stop(worker, true);
  }

  bool Run() {
    unanswered = requests.size();
    for (Worker& worker : workers) Start(worker);
    while (unanswered > 0) {
      for (Worker& worker : workers) Feed(worker);
      if (!Wait() || !events.onTick()) return false;
    }
    for (Worker& worker : workers) Stop(worker, false);
    return true;
  }

 private:
  void Start(Worker& worker) {
    int sockets[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets) != 0) return;
    const pid_t process = fork();
    if (process == 0) {
      close(sockets[0]);
      Serve(sockets[1]);
    }
    close(sockets[1]);
    if (process < 0) {
      close(sockets[0]);
      return;
    }
    worker.process = process;
    worker.socket = sockets[0];
    worker.received.clear();
  }

  [[noreturn]] void Serve(int socket) {
    // Ends with the main process, whatever ends that.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    for (const Worker& other : workers) {
      if (other.socket >= 0) close(other.socket);
    }
    // Signals from a terminal are for the main process, whose end is also the worker's.
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGTERM, SIG_DFL);
    ServeRequests(socket, socket, session);
    _exit(0);
  }

  void Stop(Worker& worker, bool kills) {
    if (worker.socket >= 0) close(worker.socket);
    worker.socket = -1;
    if (worker.process > 0) {
      if (kills) kill(worker.process, SIGKILL);
      while (waitpid(worker.process, nullptr, 0) < 0 && errno == EINTR) {
      }
    }
    worker.process = -1;
  }

  void Feed(Worker& worker) {
    if (worker.socket < 0 || queue.empty()) return;
    // Half of an equal share of what is left, so that the last files are spread evenly.
    const std::int64_t most =
        std::min(kMostInHand, left / static_cast<std::int64_t>(2 * workers.size()) + kFileCost);
    if (worker.cost * 2 > most) return;
    std::string bytes;
    while (!queue.empty() && bytes.size() < kMostRequested &&
           (worker.inHand.empty() || worker.cost < most)) {
      const std::uint32_t next = queue.front();
      queue.pop_front();
      worker.inHand.push_back(next);
      worker.cost += requests[next].cost + kFileCost;
      AppendRequest(bytes, requests[next].request);
    }
    // If this fails the worker has died, which reading will tell.
    WriteAll(worker.socket, bytes);
  }

  bool Wait() {
    std::vector<pollfd> polls;
    for (const Worker& worker : workers) {
      if (worker.socket >= 0) polls.push_back({worker.socket, POLLIN, 0});
    }
    if (polls.empty()) return false;
    if (poll(polls.data(), polls.size(), kTickMilliseconds) < 0 && errno != EINTR) return false;
    for (Worker& worker : workers) {
      for (const pollfd& entry : polls) {
        if (entry.fd == worker.socket && entry.revents != 0) {
          Receive(worker);
          break;
        }
      }
    }
    return true;
  }

  void Receive(Worker& worker) {
    const ssize_t count = recv(worker.socket, buffer.data(), buffer.size(), 0);
    if (count < 0 && errno == EINTR) return;
    if (count > 0) worker.received.append(buffer.data(), static_cast<std::size_t>(count));
    std::string_view rest = worker.received;
    bool isSound = !IsNoFrame(rest);
    for (Frame frame; isSound && TakeFrame(rest, frame);) {
      Answer answer;
      isSound = !worker.inHand.empty() && ReadAnswer(frame, answer) &&
                answer.index == requests[worker.inHand.front()].request.index;
      if (isSound) Finish(worker, std::move(answer));
    }
    worker.received.erase(0, worker.received.size() - rest.size());
    if (!isSound || count <= 0) Replace(worker);
  }

  void Finish(Worker& worker, Answer&& answer) {
    const std::int64_t cost = requests[worker.inHand.front()].cost + kFileCost;
    worker.inHand.pop_front();
    worker.cost -= cost;
    left -= cost;
    --unanswered;
    events.onAnswer(std::move(answer));
  }

  /// Starts another worker in the place of one that died.
  void Replace(Worker& worker) {
    Stop(worker, true);
    if (!worker.inHand.empty()) {
      const Request& request = requests[worker.inHand.front()].request;
      Answer answer;
      answer.index = request.index;
      answer.forFacts = request.forFacts;
      answer.result.info.status = FileStatus::kDied;
      Finish(worker, std::move(answer));
    } else if (++failures > kMostFailures) {
      return;
    }
    queue.insert(queue.begin(), worker.inHand.begin(), worker.inHand.end());
    worker.inHand.clear();
    worker.cost = 0;
    if (!queue.empty()) Start(worker);
  }

  std::span<const PooledRequest> requests;
  thorough::Session* session;
  const PoolEvents& events;
  std::deque<std::uint32_t> queue;
  std::vector<Worker> workers;
  std::vector<char> buffer = std::vector<char>(kReadSize);
  std::int64_t left = 0;  ///< The cost of what is not answered.
  std::size_t unanswered = 0;
  int failures = 0;
};

}  // namespace

bool RunInWorkers(std::span<const PooledRequest> requests, int count, thorough::Session* session,
                  const PoolEvents& events) {
  if (requests.empty()) return true;
  return Pool(requests, count, session, events).Run();
}

}  // namespace vexltags::tree
