// SPDX-License-Identifier: MIT
// The one sink of a run: collects whole tag lines of all files, sorts and writes them once.
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

/// Collects the tag lines of a run. Tag builders hand over a line in pieces; a piece that ends in a
/// newline completes the line. Lines stay in memory until `Dump`, which writes them all.
class Dumper {
 public:
  /// Stores where `Dump` will write; empty (the start value) is standard output. Nothing is opened.
  void SetOutput(const std::string& path);

  /// Appends `text` to the line in the making. If the line now ends in a newline it is complete:
  /// the observer sees it and it is stored. Newlines inside a piece split nothing.
  void Print(std::string_view text);

  /// Formats as `vsnprintf` does into 1024 bytes and hands the result to the other form; a longer
  /// result is cut to 1023 characters without a report, its final newline included.
  /// Named apart from the text form, so that a C string can never be taken for a format by mistake.
  void PrintFormat(const char* format, ...) __attribute__((format(printf, 2, 3)));

  /// The characters that a formatted piece can have.
  static constexpr std::size_t kLongestPiece = 1023;

  /// Prints `parts` as one piece as a format with strings would: each ends at a NUL byte, and the
  /// whole is cut to 1023 characters.
  void PrintPiece(std::initializer_list<std::string_view> parts);

  /// Replaces the function that sees every complete line as it is stored; empty for none.
  void SetPrintObserver(std::function<void(const std::string&)> observer);

  /// The file field for a path as `Process` stored it. With `tagRelative` the path is rewritten
  /// relative to the working directory (from `PWD`); without, it is returned as it is.
  std::string FileName(const Options& options, const std::string& path) const;

  /// Sorts and writes everything. Returns 0, or -1 after a message on standard error.
  /// May be called once.
  int Dump(const Options& options);

  /// The complete lines so far, in the order of emission; each ends in a newline.
  std::vector<std::string> Lines() const { return {lines.Lines().begin(), lines.Lines().end()}; }

 private:
  bool ReadOldLines();
  const char* Write(const Options& options, bool append, bool header) const;

  std::string pending;
  LineStore lines;
  std::string outputPath;
  std::function<void(const std::string&)> printObserver;
};

}  // namespace vexltags
