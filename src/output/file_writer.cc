// SPDX-License-Identifier: MIT
// Buffered writing that checks every system call.
#include "output/file_writer.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>

namespace vexltags {

namespace {

constexpr std::size_t kBufferSize = 1 << 16;

void Ignore(int signalNumber, struct sigaction* former) {
  struct sigaction ignore = {};
  ignore.sa_handler = SIG_IGN;
  sigaction(signalNumber, &ignore, former);
}

bool SameFile(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

}  // namespace

FileWriter::FileWriter() {
  buffer.reserve(kBufferSize);
  Ignore(SIGPIPE, &formerPipeAction);
  Ignore(SIGXFSZ, &formerSizeAction);
}

FileWriter::~FileWriter() {
  CloseDescriptor();
  sigaction(SIGPIPE, &formerPipeAction, nullptr);
  sigaction(SIGXFSZ, &formerSizeAction, nullptr);
}

bool FileWriter::OpenFile(const std::string& path, Mode mode) {
  const int how = mode == Mode::Append ? O_APPEND : 0;
  descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | how, 0666);
  ownsDescriptor = descriptor >= 0;
  failed = descriptor < 0;
  openMode = mode;
  filePath = path;
  opened = {};
  if (!failed && fstat(descriptor, &opened) != 0) opened = {};
  const bool hasContents = S_ISREG(opened.st_mode) && opened.st_size > 0;
  if (failed || mode == Mode::Append || !hasContents) return !failed;

  // Hard links would go on naming the old file.
  if (opened.st_nlink == 1 && replacement.Create(path)) {
    if (replacement.KeepsOwner()) {
      CloseDescriptor();
      return WriteToReplacement();
    }
    close(replacement.Descriptor());
    replacement.Discard();
  }
  failed = ftruncate(descriptor, 0) != 0;
  return !failed;
}

bool FileWriter::OpenReplacement(const std::string& path) {
  failed = !replacement.Create(path);
  return !failed && WriteToReplacement();
}

bool FileWriter::WriteToReplacement() {
  descriptor = replacement.Descriptor();
  ownsDescriptor = true;
  replaces = true;
  return true;
}

void FileWriter::OpenStandardOutput() {
  descriptor = STDOUT_FILENO;
  failed = std::fflush(stdout) != 0 || std::ferror(stdout) != 0;
}

bool FileWriter::Write(std::string_view text) {
  if (buffer.size() + text.size() > kBufferSize && !Flush()) return false;
  if (text.size() >= kBufferSize) return WriteOut(text.data(), text.size());
  buffer += text;
  return !failed;
}

bool FileWriter::Close() {
  if (Flush()) CloseDescriptor();
  if (!failed && replaces && !replacement.TakePlace()) failed = true;
  return !failed;
}

void FileWriter::Abandon() {
  buffer.clear();
  failed = true;
  CloseDescriptor();
  replacement.Discard();
  if (replaces) return;
  struct stat now;
  const char* path = filePath.c_str();
  if (!S_ISREG(opened.st_mode) || stat(path, &now) != 0 || !SameFile(now, opened)) return;
  const int truncated = truncate(path, openMode == Mode::Append ? opened.st_size : 0);
  static_cast<void>(truncated);  // If this fails too, nothing is left to try.
  const bool isLink = lstat(path, &now) != 0 || !SameFile(now, opened);
  if (openMode == Mode::Replace && !isLink) unlink(path);
}

bool FileWriter::Flush() {
  const bool result = WriteOut(buffer.data(), buffer.size());
  buffer.clear();
  return result;
}

bool FileWriter::WriteOut(const char* bytes, std::size_t count) {
  while (!failed && count > 0) {
    const ssize_t written = write(descriptor, bytes, count);
    if (written > 0) {
      bytes += written;
      count -= static_cast<std::size_t>(written);
    } else if (written == 0 || errno != EINTR) {
      failed = true;
    }
  }
  return !failed;
}

void FileWriter::CloseDescriptor() {
  // An interrupted close has closed the descriptor nevertheless.
  if (ownsDescriptor && close(descriptor) != 0 && errno != EINTR) failed = true;
  ownsDescriptor = false;
}

}  // namespace vexltags
