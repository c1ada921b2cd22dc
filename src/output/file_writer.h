// SPDX-License-Identifier: MIT
// Writes bytes to a file or to standard output and reports every failure.
#pragma once

#include <signal.h>
#include <sys/stat.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "output/replacement_file.h"

namespace vexltags {

/// A buffered output. The call that meets a failure and every later call return false. A closed
/// pipe or a size limit fails the write; no signal ends the process.
class FileWriter {
 public:
  enum class Mode {
    Replace,  ///< Put new contents in place of the old.
    Append,   ///< Write at the end of the file.
  };

  FileWriter();
  /// Closes without a last flush. Without a successful `Close`, output may be lost, and no file is
  /// replaced.
  ~FileWriter();
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;

  /// Opens the file and creates it if needed. Returns false if that fails.
  ///
  /// In replace mode a regular file keeps its contents until `Close` replaces it. If more than the
  /// contents would change, the file is truncated and written in place instead: if it has hard
  /// links, if its owner cannot be kept, if its folder takes no new file, or if it is no regular
  /// file.
  bool OpenFile(const std::string& path, Mode mode);
  /// Opens a replacement for the regular file at `path`, even if the owner cannot be kept or hard
  /// links continue to refer to the old file. The old file can be read until `Close`. Returns false
  /// if that fails.
  bool OpenReplacement(const std::string& path);
  /// Writes to standard output, after everything printed there before.
  void OpenStandardOutput();

  /// Adds `text` to the output. Returns false once anything has failed.
  bool Write(std::string_view text);
  /// Flushes the buffer, closes the file and moves a replacement to its place; standard output
  /// stays open. Returns false if this or any earlier call failed.
  bool Close();
  /// Returns whether any call failed.
  bool HasFailed() const { return failed; }
  /// Closes and undoes the writing, so that partial output cannot pass for complete output. A file
  /// to be replaced keeps its contents, and one in append mode is cut back to its former length. A
  /// regular file written in place is removed, or emptied if the path is a symbolic link. Anything
  /// else, such as a device, is left alone.
  void Abandon();

 private:
  bool WriteToReplacement();
  bool Flush();
  bool WriteOut(const char* bytes, std::size_t count);
  void CloseDescriptor();

  int descriptor = -1;
  bool ownsDescriptor = false;
  bool failed = false;
  Mode openMode = Mode::Replace;
  ReplacementFile replacement;
  bool replaces = false;  // What is written goes to `replacement`.
  std::string filePath;
  struct stat opened = {};  // The file when it was opened; without a type if that is unknown.
  std::string buffer;
  struct sigaction formerPipeAction;
  struct sigaction formerSizeAction;
};

}  // namespace vexltags
