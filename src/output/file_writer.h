// SPDX-License-Identifier: MIT
// Puts bytes to a file or to standard output and reports every failure.
#pragma once

#include <signal.h>
#include <sys/stat.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace vexltags {

/// A buffered output. A failure shows in the result of the call that met it and of every later one,
/// never as a signal: a closed pipe and a size limit fail the write and do not end the process.
class FileWriter {
 public:
  enum class Mode {
    Truncate,  ///< Start from an empty file.
    Append,    ///< Write behind what is there.
  };

  FileWriter();
  /// Closes without a last flush; what `Close` has not confirmed may be lost.
  ~FileWriter();
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;

  /// Opens, creating the file if needed. Returns false when that fails.
  bool OpenFile(const std::string& path, Mode mode);
  /// Writes to standard output, behind all that was printed there before.
  void OpenStandardOutput();

  /// Adds `text` to the output. Returns false once anything has failed.
  bool Write(std::string_view text);
  /// Writes out what is buffered, then closes; standard output stays open. Returns false if this or
  /// anything before failed.
  bool Close();
  /// Closes and takes back what was written, so that no partial output can pass for a whole one: a
  /// regular file gets its former length if it was appended to and is removed otherwise (behind a
  /// symbolic link it is emptied). Anything else, such as a device, is left alone.
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
  struct stat opened = {};  // The file as it was right after opening; no type if there is none.
  std::string buffer;
  struct sigaction formerPipeAction;
  struct sigaction formerSizeAction;
};

}  // namespace vexltags
