// SPDX-License-Identifier: MIT
// Writes bytes to a file or to standard output and reports every failure.
#pragma once

#include <signal.h>
#include <sys/stat.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace vexltags {

/// A buffered output. The call that meets a failure and every later call return false. A closed
/// pipe or a size limit fails the write; no signal ends the process.
class FileWriter {
 public:
  enum class Mode {
    Truncate,  ///< Start from an empty file.
    Append,    ///< Write at the end of the file.
  };

  FileWriter();
  /// Closes without a last flush. Without a successful `Close`, output may be lost.
  ~FileWriter();
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;

  /// Opens the file and creates it if needed. Returns false if that fails.
  bool OpenFile(const std::string& path, Mode mode);
  /// Writes to standard output, after everything printed there before.
  void OpenStandardOutput();

  /// Adds `text` to the output. Returns false once anything has failed.
  bool Write(std::string_view text);
  /// Flushes the buffer and closes the file; standard output stays open. Returns false if this or
  /// any earlier call failed.
  bool Close();
  /// Closes and undoes the writing, so that partial output cannot pass for complete output. A
  /// regular file is cut back to its former length in append mode; otherwise it is removed, or
  /// emptied if the path is a symbolic link. Anything else, such as a device, is left alone.
  void Abandon();

 private:
  bool Flush();
  bool WriteOut(const char* bytes, std::size_t count);
  void CloseDescriptor();

  int descriptor = -1;
  bool ownsDescriptor = false;
  bool failed = false;
  Mode openMode = Mode::Truncate;
  std::string filePath;
  struct stat opened = {};  // The file when it was opened; without a type if that is unknown.
  std::string buffer;
  struct sigaction formerPipeAction;
  struct sigaction formerSizeAction;
};

}  // namespace vexltags
