// SPDX-License-Identifier: MIT
// The file that a run writes, which is replaced as a whole or not at all.
#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace vexltags::tree {

/// Returns why the file at `path` must not be replaced: it is no regular file, or its content is
/// not that of a tags file. Empty if it may be replaced, or does not exist.
std::string WhyNotReplaced(const std::string& path);

/// Writes to a new file in the folder of its target. Nothing of it has a name until it is complete;
/// whatever ends the process before that leaves the old file.
class OutputFile {
 public:
  OutputFile() = default;
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  /// Starts a new file in place of the one at `path`, or of the file that a symbolic link there
  /// refers to; "-" writes to standard output. False if that is not possible.
  bool Open(const std::string& path);
  /// False if anything failed.
  bool Write(std::string_view bytes);
  /// Writes `size` bytes of the open file `source`, from its offset `begin` on. The system copies
  /// them, if it can. False if anything failed, or if the file is shorter.
  bool Copy(int source, std::size_t begin, std::size_t size);
  /// Puts the new file in the place of its target, with the mode of the old one. False on failure;
  /// the old file is then as it was.
  bool Commit();
  /// The new file, after `Commit`; all zero for standard output.
  const struct stat& Status() const { return status; }

 private:
  bool Flush();

  std::string target;
  std::string temporary;  ///< The name of the new file, if it has one.
  int descriptor = -1;
  std::string buffer;
  bool isGood = false;
  struct stat status = {};
};

}  // namespace vexltags::tree
