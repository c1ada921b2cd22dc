// SPDX-License-Identifier: MIT
// Reads whole files.
#include "ctags/text_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>

namespace vexltags::ctags {
namespace {

int ReadDescriptor(int file, std::string& text) {
  std::size_t size = 0;
  for (;;) {
    if (text.size() - size < 4096) text.resize(size + 65536 + size / 2);
    const ssize_t count = read(file, text.data() + size, text.size() - size);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) {
      text.resize(size);
      return count < 0 ? errno : 0;
    }
    size += static_cast<std::size_t>(count);
  }
}

int ReadFile(const std::string& path, bool alsoPipes, std::string& text) {
  text.clear();
  // Opening a pipe to read a source would wait for a writer.
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | (alsoPipes ? 0 : O_NONBLOCK));
  if (file < 0) return errno;
  struct stat status;
  int reason = fstat(file, &status) == 0 ? 0 : errno;
  if (reason == 0 && S_ISDIR(status.st_mode)) reason = EISDIR;
  if (reason == 0 && !S_ISREG(status.st_mode) && !alsoPipes) reason = EINVAL;
  // Nor is memory taken for what a sparse file claims to hold.
  if (reason == 0 && static_cast<std::uint64_t>(status.st_size) >= UINT32_MAX) reason = EFBIG;
  if (reason == 0) {
    text.resize(static_cast<std::size_t>(status.st_size) + 4097);
    reason = ReadDescriptor(file, text);
  }
  close(file);
  return reason;
}

}  // namespace

int ReadText(const std::string& path, std::string& text) { return ReadFile(path, false, text); }

int ReadStandardInput(std::string& text) {
  text.clear();
  return ReadDescriptor(STDIN_FILENO, text);
}

int ReadLines(const std::string& path, std::vector<std::string>& lines) {
  std::string text;
  const int reason = path == "-" ? ReadStandardInput(text) : ReadFile(path, true, text);
  if (reason != 0) return reason;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return 0;
}

}  // namespace vexltags::ctags
