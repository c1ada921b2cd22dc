// SPDX-License-Identifier: MIT
// Runs another program and reads what it prints.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace vexltags {

/// What became of a program.
struct ChildResult {
  bool started = false;  ///< False if the program does not exist or could not be started.
  int status = -1;       ///< The exit status; -1 if it was ended by a signal.
  std::string output;    ///< What it wrote to standard output.
  std::string errors;    ///< What it wrote to standard error.
};

/// A program that runs while its caller does something else.
class ChildProcess {
 public:
  /// Starts `command`, found through PATH, with empty standard input and `environment`, each item
  /// NAME=VALUE. Uses no shell.
  ChildProcess(const std::vector<std::string>& command,
               const std::vector<std::string>& environment);
  /// Waits for the end of the program.
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Reads what the program prints, and waits for its end. To be called once. A program that prints
  /// much waits for this call.
  ChildResult Finish();

 private:
  /// A pipe whose ends are not inherited.
  class Pipe {
   public:
    Pipe();
    ~Pipe() { Close(); }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    bool IsOpen() const { return isOpen; }
    int Reader() const { return ends[0]; }
    int Writer() const { return ends[1]; }
    void CloseWriter();
    void Close();

   private:
    int ends[2] = {-1, -1};
    bool isOpen = false;
  };

  /// Reads both pipes to their ends.
  void ReadAll(ChildResult& result);
  /// Waits until the program has ended.
  void Wait(ChildResult& result);

  Pipe output;
  Pipe errors;
  pid_t child = -1;  ///< -1 if there is none, or none any more.
};

/// Runs a program from its start to its end.
ChildResult RunChild(const std::vector<std::string>& command,
                     const std::vector<std::string>& environment);

}  // namespace vexltags
