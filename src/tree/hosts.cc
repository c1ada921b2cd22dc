// SPDX-License-Identifier: MIT
// Distributes tasks among machines through GNU parallel, which starts them through ssh and writes
// what each of them printed to a file. Tasks that failed are passed to it once more: what it does
// itself about them, with --retries, loses their input.
#include "tree/hosts.h"

#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "base/version.h"
#include "tree/messages.h"
#include "tree/run_program.h"

namespace vexltags::tree {
namespace {

constexpr int kProbeSeconds = 15;
/// What GNU parallel itself may take.
constexpr int kStartSeconds = 30;

/// A temporary folder that is removed at the end.
class Folder {
 public:
  Folder() {
    std::error_code error;
    std::string name = std::filesystem::temp_directory_path(error) / "vexltags-hosts-XXXXXX";
    if (!error && mkdtemp(name.data()) != nullptr) path = name;
  }
  ~Folder() {
    std::error_code error;
    if (!path.empty()) std::filesystem::remove_all(path, error);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  std::string operator/(const std::string& name) const { return path + "/" + name; }
  bool IsThere() const { return !path.empty(); }

 private:
  std::string path;
};

/// A host that answers.
struct Host {
  std::string name;   ///< As GNU parallel prints it.
  std::string login;  ///< As GNU parallel takes it, with the number of tasks at once.
};

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Calls `onFields` with the fields of each line of a text, which tabs separate.
template <typename Function>
void ForEachLine(const std::string& text, Function onFields) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::vector<std::string> fields;
    std::istringstream rest(line);
    for (std::string field; std::getline(rest, field, '\t');) fields.push_back(field);
    onFields(fields);
  }
}

/// The host without the number of tasks, which GNU parallel takes before a slash.
std::string NameOf(const std::string& host) {
  const std::size_t digits = host.find_first_not_of("0123456789");
  const bool hasNumber = digits != 0 && digits != host.npos && host[digits] == '/';
  return hasNumber ? host.substr(digits + 1) : host;
}

std::vector<std::string> ParallelCommand(int seconds) {
  return {"parallel", "--will-cite", "--timeout", std::to_string(seconds)};
}

/// Finds the hosts on which this version of the program answers.
class Probe {
 public:
  Probe(const std::vector<std::string>& hosts, const HostEvents& events) {
    const Folder folder;
    std::vector<std::string> command = ParallelCommand(kProbeSeconds);
    for (const std::string& host : hosts) {
      // Its processors are asked for here: GNU parallel would wait for that without a limit.
      command.insert(command.end(), {"--sshlogin", "1/" + NameOf(host)});
    }
    // Each line of the output begins with the host.
    command.insert(command.end(),
                   {"--nonall", "--tag", "--jobs", "0", "vexltags-tree --version && nproc"});
    if (!folder.IsThere() ||
        !RunProgram(command, folder / "output", kProbeSeconds + kStartSeconds, events.onTick)) {
      events.onProblem("GNU parallel is not installed");
      return;
    }
    ForEachLine(ReadFile(folder / "output"), [this](const std::vector<std::string>& fields) {
      if (fields.size() == 2) answers[fields[0]].push_back(fields[1]);
    });
    for (const std::string& host : hosts) Check(host, events);
  }

  const std::vector<Host>& Usable() const { return usable; }

 private:
  void Check(const std::string& host, const HostEvents& events) {
    const std::string name = NameOf(host);
    const auto answer = answers.find(name);
    if (answer == answers.end()) {
      events.onProblem(name + " does not answer; it is left out");
    } else if (answer->second[0] != std::string("vexltags-tree v") + kVersion) {
      events.onProblem(name + " has another version; it is left out");
    } else if (host != name) {
      usable.push_back({name, host});
    } else {
      usable.push_back({name, (answer->second.size() > 1 ? answer->second[1] : "1") + "/" + name});
    }
  }

  std::map<std::string, std::vector<std::string>> answers;
  std::vector<Host> usable;
};

/// Runs tasks on hosts once.
class Round {
 public:
  Round(const std::vector<Host>& hosts, const HostSettings& settings,
        const std::vector<std::string>& tasks, const std::vector<std::size_t>& numbers) {
    std::vector<std::string> command = ParallelCommand(settings.seconds);
    command.insert(command.end(), {"--joblog", folder / "log", "--results", folder / "{#}/",
                                   "--jobs", "100%", "--pipepart", "--recend", ""});
    for (const Host& host : hosts) command.insert(command.end(), {"--sshlogin", host.login});
    // A file for each task, and none larger than a block: each is one job.
    std::size_t largest = 0;
    for (const std::size_t number : numbers) {
      const std::string path = folder / ("task" + std::to_string(number));
      const std::string input = Seal(settings.start + tasks[number]);
      std::ofstream file(path, std::ios::binary);
      if (!(file << input).flush()) hasRoom = false;
      command.insert(command.end(), {"-a", path});
      largest = std::max(largest, input.size());
    }
    command.insert(command.end(),
                   {"--block", std::to_string(largest + 1), "vexltags-tree", "--worker"});
    arguments = std::move(command);
    // Were they done one after the other.
    mostSeconds = kStartSeconds + settings.seconds * static_cast<int>(numbers.size());
  }

  /// Passes the output of each task on. Returns the numbers of those that failed, and adds the
  /// hosts on which they did to `failed`.
  std::vector<std::size_t> Run(const std::vector<std::size_t>& numbers, const HostEvents& events,
                               std::set<std::string>& failed) {
    if (!folder.IsThere() || !hasRoom) {
      events.onProblem("no room for the tasks of the hosts");
      return numbers;
    }
    RunProgram(arguments, folder / "output", mostSeconds, events.onTick);
    // Columns: number of the job, host, start, time, sent, received, status, signal, command.
    std::map<std::string, std::string> hostOf;
    ForEachLine(ReadFile(folder / "log"), [&hostOf](const std::vector<std::string>& columns) {
      if (columns.size() > 1) hostOf[columns[0]] = columns[1];
    });
    std::vector<std::size_t> left;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const std::string job = std::to_string(i + 1);
      const std::string output = ReadFile(folder / (job + "/stdout"));
      if (const auto answers = Unseal(output)) {
        events.onOutput(*answers);
        continue;
      }
      left.push_back(numbers[i]);
      if (hostOf.contains(job)) failed.insert(hostOf[job]);
    }
    return left;
  }

 private:
  Folder folder;
  bool hasRoom = true;
  int mostSeconds = 0;
  std::vector<std::string> arguments;
};

}  // namespace

void RunOnHosts(const HostSettings& settings, const std::vector<std::string>& tasks,
                const HostEvents& events) {
  std::vector<Host> hosts = Probe(settings.hosts, events).Usable();
  std::vector<std::size_t> left;
  for (std::size_t i = 0; i < tasks.size(); ++i) left.push_back(i);
  while (!left.empty() && !hosts.empty() && events.onTick()) {
    std::set<std::string> failed;
    left = Round(hosts, settings, tasks, left).Run(left, events, failed);
    for (const std::string& name : failed) {
      events.onProblem(name + " failed; what it was to read is read elsewhere");
    }
    const std::size_t removed =
        std::erase_if(hosts, [&failed](const Host& host) { return failed.contains(host.name); });
    // Whatever the reason is, it would be the same the next time.
    if (removed == 0) return;
  }
}

}  // namespace vexltags::tree
