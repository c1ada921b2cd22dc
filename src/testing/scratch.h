// SPDX-License-Identifier: MIT
// What unit tests need of the system: scratch folders, environment variables, child processes.
#pragma once

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>

namespace vexltags::testing_support {

/// An empty folder that goes away with the object. Its path holds no symbolic link.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string name = std::filesystem::temp_directory_path() / "vexltags-test-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) std::abort();
    folder = std::filesystem::canonical(name);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  /// The path of `name` in the folder; of the folder itself for an empty name.
  std::string Path(const std::string& name = "") const {
    return name.empty() ? folder.string() : (folder / name).string();
  }

 private:
  std::filesystem::path folder;
};

inline void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

/// The bytes of a file; nothing if it cannot be opened.
inline std::optional<std::string> ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

/// Sets an environment variable, or unsets it for a null value, until the object goes away.
class ScopedVariable {
 public:
  ScopedVariable(const char* variable, const char* value) : name(variable) {
    if (const char* current = std::getenv(variable)) former = current;
    Set(value);
  }
  ~ScopedVariable() { Set(former ? former->c_str() : nullptr); }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  void Set(const char* value) {
    if (value == nullptr) {
      unsetenv(name);
    } else {
      setenv(name, value, 1);
    }
  }

  const char* name;
  std::optional<std::string> former;
};

/// Changes the working directory until the object goes away. `PWD` stays as it is.
class ScopedDirectory {
 public:
  explicit ScopedDirectory(const std::string& path) : former(std::filesystem::current_path()) {
    std::filesystem::current_path(path);
  }
  ~ScopedDirectory() { std::filesystem::current_path(former); }
  ScopedDirectory(const ScopedDirectory&) = delete;
  ScopedDirectory& operator=(const ScopedDirectory&) = delete;

 private:
  std::filesystem::path former;
};

/// Runs `body` in a child process, where statics, limits and descriptors may be changed freely.
/// Returns what it returned (0 to 255), or minus the number of the signal that ended the child.
inline int RunInChild(const std::function<int()>& body) {
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    const int status = body();
    std::fflush(nullptr);
    _exit(status & 0xff);
  }
  int state = 0;
  if (child < 0 || waitpid(child, &state, 0) != child) return -1000;
  return WIFSIGNALED(state) ? -WTERMSIG(state) : WEXITSTATUS(state);
}

}  // namespace vexltags::testing_support
