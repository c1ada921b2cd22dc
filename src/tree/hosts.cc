// SPDX-License-Identifier: MIT
// Distributes tasks among machines through GNU parallel, which starts them through ssh, gives tasks
// that fail to other machines, and writes what each of them printed to a file.
#include "tree/hosts.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <thread>

#include "base/version.h"
#include "cache/content_hash.h"
#include "tree/messages.h"

extern char** environ;

namespace vexltags::tree {
namespace {

constexpr int kProbeSeconds = 15;
constexpr int kTries = 3;
constexpr auto kTick = std::chrono::milliseconds(100);

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

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Runs a program with `input` as standard input, and waits for it. Its output goes to the file
/// `output`; its messages are dropped, since what fails is tried again. Returns whether it could
/// be started.
bool RunProgram(const std::vector<std::string>& arguments, const std::string& input,
                const std::string& output, const std::function<bool()>& onTick) {
  std::vector<char*> argv;
  for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, input.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  sigset_t defaults;
  sigemptyset(&defaults);
  sigaddset(&defaults, SIGPIPE);
  sigaddset(&defaults, SIGXFSZ);
  posix_spawnattr_setsigdefault(&attributes, &defaults);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
  pid_t process = -1;
  const bool isStarted =
      posix_spawnp(&process, argv[0], &actions, &attributes, argv.data(), environ) == 0;
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  if (!isStarted) return false;
  bool isEnded = false;
  while (waitpid(process, nullptr, WNOHANG) == 0) {
    if (!isEnded && !onTick()) {
      isEnded = true;
      kill(process, SIGTERM);
    }
    std::this_thread::sleep_for(kTick);
  }
  return true;
}

std::vector<std::string> ParallelCommand(const HostSettings& settings, int seconds,
                                         const Folder& folder) {
  std::vector<std::string> command = {
      "parallel", "--will-cite", "--timeout", std::to_string(seconds), "--joblog", folder / "log"};
  for (const std::string& host : settings.hosts) {
    command.emplace_back("--sshlogin");
    command.push_back(host);
  }
  return command;
}

}  // namespace

std::vector<std::string> UsableHosts(const HostSettings& settings,
                                     const std::function<void(const std::string&)>& onProblem) {
  const Folder folder;
  if (!folder.IsThere()) return {};
  std::vector<std::string> command = ParallelCommand(settings, kProbeSeconds, folder);
  // Each line of the output begins with the host.
  for (const char* part : {"--nonall", "--tag", "--jobs", "0", "vexltags-tree", "--version"}) {
    command.emplace_back(part);
  }
  if (!RunProgram(command, "/dev/null", folder / "output", [] { return true; })) {
    onProblem("GNU parallel is not installed");
    return {};
  }
  std::map<std::string, std::string> answers;
  std::istringstream output(ReadFile(folder / "output"));
  for (std::string line; std::getline(output, line);) {
    const std::size_t tab = std::min(line.find('\t'), line.size());
    answers[line.substr(0, tab)] = line.substr(std::min(tab + 1, line.size()));
  }
  std::vector<std::string> usable;
  for (const std::string& host : settings.hosts) {
    const auto answer = answers.find(host);
    if (answer == answers.end()) {
      onProblem(host + " does not answer; it is left out");
    } else if (answer->second != std::string("vexltags-tree v") + kVersion) {
      onProblem(host + " has another version; it is left out");
    } else {
      usable.push_back(host);
    }
  }
  return usable;
}

void RunOnHosts(const HostSettings& settings, const std::vector<std::string>& tasks,
                const std::function<void(std::string_view)>& onOutput,
                const std::function<void(const std::string&)>& onProblem,
                const std::function<bool()>& onTick) {
  const Folder folder;
  if (!folder.IsThere()) return onProblem("no temporary folder");
  // Tasks are the records of one stream. Their end is marked by what none of them contains.
  std::string mark;
  for (std::uint64_t seed = 0; mark.empty(); ++seed) {
    mark = "<" + std::to_string(ContentHash(std::to_string(seed))) + ">";
    for (const std::string& task : tasks) {
      if (task.find(mark) != std::string::npos) mark.clear();
    }
  }
  {
    std::ofstream input(folder / "input", std::ios::binary);
    for (const std::string& task : tasks) input << task << mark;
    if (!input.flush()) return onProblem("no room for the tasks of the hosts");
  }
  std::vector<std::string> command = ParallelCommand(settings, settings.seconds, folder);
  for (const std::string& part :
       {std::string("--pipe"), std::string("-N1"), std::string("--recend"), mark,
        std::string("--remove-rec-sep"), std::string("--retries"), std::to_string(kTries),
        std::string("--jobs"),
        settings.jobs > 0 ? std::to_string(settings.jobs) : std::string("100%"),
        std::string("--results"), folder / "results", std::string("vexltags-tree"),
        std::string("--worker")}) {
    command.push_back(part);
  }
  RunProgram(command, folder / "input", folder / "output", onTick);
  std::error_code error;
  for (std::filesystem::recursive_directory_iterator it(folder / "results", error), end;
       !error && it != end; it.increment(error)) {
    if (it->path().filename() == "stdout") onOutput(ReadFile(it->path()));
  }
  // Columns: number, host, start, time, sent, received, status, signal, command.
  std::istringstream log(ReadFile(folder / "log"));
  std::set<std::string> failed;
  std::string line;
  std::getline(log, line);
  while (std::getline(log, line)) {
    std::vector<std::string> columns;
    std::istringstream fields(line);
    for (std::string column; std::getline(fields, column, '\t');) columns.push_back(column);
    if (columns.size() > 7 && (columns[6] != "0" || columns[7] != "0")) failed.insert(columns[1]);
  }
  // The log has only the last try of each task. A machine that was lost is one that is silent now.
  HostSettings silent = settings;
  std::erase_if(silent.hosts, [&failed](const auto& host) { return failed.contains(host); });
  if (!silent.hosts.empty()) {
    const std::vector<std::string> usable = UsableHosts(silent, [](const std::string&) {});
    for (const std::string& host : silent.hosts) {
      if (std::find(usable.begin(), usable.end(), host) == usable.end()) failed.insert(host);
    }
  }
  for (const std::string& host : failed) {
    onProblem(host + " failed; what it was to read is read elsewhere");
  }
}

}  // namespace vexltags::tree
