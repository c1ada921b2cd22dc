// SPDX-License-Identifier: MIT
// What lexer and parser share for one file: its name, the words to hide, the time limits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <unordered_set>

namespace vexltags {

/// State of one file; the contexts of lexer and parser point to it. Times are in microseconds.
class TagsLexerState {
 public:
  /// 64-bit FNV-1a of the characters up to the terminating NUL.
  struct constCharHash {
    std::size_t operator()(const char* text) const;
  };
  /// Compares the characters, not the pointers.
  struct equstr {
    bool operator()(const char* a, const char* b) const;
  };
  using FilterSet = std::unordered_set<const char*, constCharHash, equstr>;

  /// Starts the clock. A limit of 0 is off.
  TagsLexerState(const std::string& fileName, long reportIfLonger, long abortIfLonger);
  /// Reports a file that took longer than `reportIfLonger` on standard error, unless parsing was
  /// aborted.
  ~TagsLexerState();
  TagsLexerState(const TagsLexerState&) = delete;
  TagsLexerState& operator=(const TagsLexerState&) = delete;

  /// True if the file has taken longer than `abortIfLonger`; reports that once on standard error.
  bool CheckRunningTooLong() const;
  /// True once `CheckRunningTooLong` has returned true.
  bool Aborted() const { return aborted; }
  /// Makes `CheckWatchdog` check the time limit too: for readings of a file in which the rules that
  /// check it may not be needed.
  void LimitEachItem() { limitsItems = true; }
  /// False unless `LimitEachItem` has been called: the hook for a watchdog that follows the
  /// progress of the parser.
  bool CheckWatchdog(const std::string& position) const;
  /// The same with a function that formats the position. It is never called, so that no text is
  /// built for nothing.
  template <class Form>
  requires std::is_invocable_r_v<std::string, Form>
  bool CheckWatchdog(const Form&) const { return limitsItems && CheckRunningTooLong(); }

  /// Words that the C-family lexer hides. The set does not own the strings.
  FilterSet filterTokens;

 private:
  std::string fileName;
  std::int64_t startTime;
  std::int64_t reportIfLonger;
  std::int64_t abortIfLonger;
  mutable bool aborted = false;
  bool limitsItems = false;
};

}  // namespace vexltags
