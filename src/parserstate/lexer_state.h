// SPDX-License-Identifier: MIT
// What lexer and parser share for one file: its name, the words to hide, and the time limits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <unordered_set>

namespace vexltags {

/// Per-file state, reachable from the contexts of lexer and parser. Times are in microseconds.
class TagsLexerState {
 public:
  /// 64-bit FNV-1a over the characters up to the terminating NUL.
  struct constCharHash {
    std::size_t operator()(const char* text) const;
  };
  /// Equality of the characters, not of the pointers.
  struct equstr {
    bool operator()(const char* a, const char* b) const;
  };
  using FilterSet = std::unordered_set<const char*, constCharHash, equstr>;

  /// Starts the clock. A limit of 0 is off.
  TagsLexerState(const std::string& fileName, long reportIfLonger, long abortIfLonger);
  /// Reports on standard error a file that took longer than `reportIfLonger`, unless it was given
  /// up.
  ~TagsLexerState();
  TagsLexerState(const TagsLexerState&) = delete;
  TagsLexerState& operator=(const TagsLexerState&) = delete;

  /// True when the file is over `abortIfLonger`; says so once on standard error.
  bool CheckRunningTooLong() const;
  /// True once `CheckRunningTooLong` gave the file up.
  bool Aborted() const { return aborted; }
  /// Always false: the place where a watchdog would be told of progress.
  bool CheckWatchdog(const std::string& position) const;
  /// The same with a function that would form the position; as long as nobody listens it is not
  /// called.
  template <class Form>
  requires std::is_invocable_r_v<std::string, Form>
  bool CheckWatchdog(const Form&) const { return false; }

  /// Words that the C-family lexer hides. The set does not own the strings.
  FilterSet filterTokens;

 private:
  std::string fileName;
  std::int64_t startTime;
  std::int64_t reportIfLonger;
  std::int64_t abortIfLonger;
  mutable bool aborted = false;
};

}  // namespace vexltags
