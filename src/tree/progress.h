// SPDX-License-Identifier: MIT
// The line that shows how far long work is.
#pragma once

#include <cstdint>
#include <string>

namespace vexltags::tree {

/// Shows a line on standard error, if that is a terminal and the work takes a while, and removes it
/// at the end.
class Progress {
 public:
  explicit Progress(bool isQuiet);
  ~Progress() { Clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// Starts a piece of work on this many files and bytes of source. `verb` is like "reading".
  void Begin(const std::string& verb, std::size_t files, std::int64_t bytes);
  void Add(std::int64_t bytes);
  /// Shows the line anew if it is time for that.
  void Tick();
  /// Removes the line, so that something else can be printed.
  void Clear();

 private:
  bool isShown = false;
  bool isTerminal;
  std::string verb;
  std::size_t files = 0;
  std::size_t filesDone = 0;
  std::int64_t bytes = 0;
  std::int64_t bytesDone = 0;
  std::int64_t start = 0;  ///< Microseconds.
  std::int64_t shownAt = 0;
};

/// The text of the line. `micros` is the time since the start of the work.
std::string ProgressText(const std::string& verb, std::size_t filesDone, std::size_t files,
                         std::int64_t bytesDone, std::int64_t bytes, std::int64_t micros);

}  // namespace vexltags::tree
