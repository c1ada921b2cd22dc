// SPDX-License-Identifier: MIT
// The memory in which a worker leaves its answers.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vexltags::tree {

/// A file in memory, without a name. A worker appends to it, and the process that forked the worker
/// reads it in place. What was appended remains, whatever becomes of the worker.
class AnswerStore {
 public:
  AnswerStore() = default;
  ~AnswerStore();
  AnswerStore(const AnswerStore&) = delete;
  AnswerStore& operator=(const AnswerStore&) = delete;

  /// Makes the file. False on failure; nothing can be appended then.
  bool Create();
  /// Appends `bytes`. False on failure; this and all that would follow has to go another way.
  bool Append(std::string_view bytes);

  /// Returns the bytes from `begin`, an offset in the file, to its present end. They are good as
  /// long as the object exists. Empty if there are none.
  std::string_view From(std::size_t begin);
  /// Closes the file. What `From` returned stays good; there is nothing more.
  void Close();

 private:
  /// A part of the file that is mapped to memory.
  struct Mapping {
    std::size_t begin = 0;
    std::size_t size = 0;
    const char* bytes = nullptr;
  };

  int file = -1;
  bool isOpen = false;  ///< Appending has not failed.
  std::vector<Mapping> mappings;
};

}  // namespace vexltags::tree
