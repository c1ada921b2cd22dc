// SPDX-License-Identifier: MIT
// Scratch folders, environment variables and child processes for unit tests.
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

/// A temporary folder; removed on destruction. Its path contains no symbolic link.
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

  /// Returns the path of `name` in the folder, or of the folder itself if `name` is empty.
  std::string Path(const std::string& name = "") const {
    return name.empty() ? folder.string() : (folder / name).string();
  }

 private:
  std::filesystem::path folder;
};

inline void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

/// Returns the bytes of a file, or nothing if it cannot be opened.
inline std::optional<std::string> ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

/// Sets an environment variable, or unsets it if the value is null, until destruction.
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

/// Changes the working directory until destruction. Does not change `PWD`.
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

/// Runs `body` in a child process, where it can change statics, limits and descriptors. Returns its
/// result (0 to 255), or the negative number of the signal that terminated the child.
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
