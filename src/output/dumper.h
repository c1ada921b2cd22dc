// SPDX-License-Identifier: MIT
// The one sink of a run: collects the tag lines of all files, sorts them and writes them once.
#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/options.h"
#include "output/line_store.h"

namespace vexltags {

/// Collects the tag lines of a run. A line arrives in pieces; a piece that ends in a newline
/// completes it. Lines stay in memory until `Dump` writes them all.
class Dumper {
 public:
  /// Sets the file that `Dump` writes; empty, the default, is standard output. Opens nothing.
  void SetOutput(const std::string& path);

  /// Appends `text` to the pending line. If that now ends in a newline, the line is complete: it is
  /// shown to the observer and stored. A newline inside a piece splits nothing.
  void Print(std::string_view text) {
    pending += text;
    if (!pending.empty() && pending.back() == '\n') CompleteLine();
  }

  /// Formats with `vsnprintf` into 1024 bytes and prints the result. A longer one is cut to 1023
  /// bytes without a report, and a final newline goes with the rest. Not an overload of `Print`, so
  /// that a C string is never taken for a format by mistake. The program itself uses `PrintPiece`,
  /// which tests compare with this function.
  void PrintFormat(const char* format, ...) __attribute__((format(printf, 2, 3)));

  /// The largest size of a formatted piece, in bytes.
  static constexpr std::size_t kLongestPiece = 1023;

  /// Prints `parts` as one formatted piece, as `PrintFormat` prints them with `%s` for each: a part
  /// ends at its first NUL byte, and the whole is cut to `kLongestPiece` bytes.
  void PrintPiece(std::initializer_list<std::string_view> parts);

  /// Sets the function that is called with each complete line; empty for none.
  void SetPrintObserver(std::function<void(const std::string&)> observer);

  /// The file field for a path as `Process` stored it: the path itself, or with `tagRelative` the
  /// path relative to the working directory, see relative_path.h.
  std::string FileName(const Options& options, const std::string& path) const;

  /// Sorts and writes all lines. Returns 0, or -1 after a message on standard error. Call it at
  /// most once.
  int Dump(const Options& options);

  /// The complete lines in the order of emission, as views that are good until `Dump`.
  const std::vector<std::string_view>& LinesInOrder() const { return lines.Lines(); }
  /// The line that is not yet complete.
  std::string_view Pending() const { return pending; }

  /// The complete lines in the order of emission, each with its newline.
  std::vector<std::string> Lines() const { return {lines.Lines().begin(), lines.Lines().end()}; }

 private:
  /// Stores the pending line, which ends in a newline.
  void CompleteLine();
  bool ReadOldLines();
  const char* Write(const Options& options, bool append, bool header) const;

  std::string pending;
  LineStore lines;
  std::string outputPath;
  std::function<void(const std::string&)> printObserver;
};

}  // namespace vexltags
