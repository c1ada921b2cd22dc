// SPDX-License-Identifier: MIT
// A new file that replaces an existing one in one step.
#pragma once

#include <string>

namespace vexltags {

/// A file that is written in the folder of another one, its target, and then renamed to it. Readers
/// thus see either the old contents or the new, and a failure leaves the old. Symbolic links are
/// followed: the file that they refer to is replaced.
class ReplacementFile {
 public:
  ReplacementFile() = default;
  /// Removes the new file unless it replaced its target. Does not close the descriptor.
  ~ReplacementFile() { Discard(); }
  ReplacementFile(const ReplacementFile&) = delete;
  ReplacementFile& operator=(const ReplacementFile&) = delete;

  /// Creates the new file, empty, with the mode of the regular file at `target` and, if permitted,
  /// its owner and group. Returns false if there is no such file, or on failure.
  bool Create(const std::string& target);
  /// Returns whether the new file has the owner and group of its target. Only root can change the
  /// owner of a file.
  bool KeepsOwner() const { return keepsOwner; }
  /// Open for writing from `Create` on; the caller closes it.
  int Descriptor() const { return descriptor; }

  /// Renames the new file to its target. Returns false on failure.
  bool TakePlace();
  /// Removes the new file if there is one.
  void Discard();

 private:
  std::string targetPath;  ///< Without symbolic links.
  std::string path;        ///< Of the new file; empty if there is none.
  int descriptor = -1;
  bool keepsOwner = false;
};

}  // namespace vexltags
