// SPDX-License-Identifier: MIT
// The file that a run writes, which is replaced as a whole or not at all.
#include "tree/output_file.h"

#include <fcntl.h>
#include <limits.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "portable/tag_line.h"
#include "tree/messages.h"

namespace vexltags::tree {
namespace {

constexpr std::size_t kBuffer = std::size_t{1} << 20;
/// What is written without a copy in the buffer.
constexpr std::size_t kLarge = std::size_t{1} << 16;
constexpr mode_t kNewMode = 0666;

bool IsTagsFile(std::string_view start) {
  if (start.starts_with("!_TAG_") || start.starts_with("\f\n") ||
      start.starts_with("{\"_type\":")) {
    return true;
  }
  const std::string_view line = start.substr(0, start.find('\n'));
  TagLine tag;
  return line.find(";\"\t") != line.npos && ParseTagLine(line, tag) == LineForm::kTag;
}

/// The path without symbolic links at its end, also if it does not exist.
std::string Resolved(const std::string& path) {
  char resolved[PATH_MAX];
  if (realpath(path.c_str(), resolved) != nullptr) return resolved;
  const ssize_t length = readlink(path.c_str(), resolved, sizeof resolved - 1);
  if (length <= 0) return path;
  std::string linked(resolved, static_cast<std::size_t>(length));
  const std::size_t slash = path.rfind('/');
  if (linked.starts_with('/') || slash == std::string::npos) return linked;
  return path.substr(0, slash + 1) + linked;
}

}  // namespace

std::string WhyNotReplaced(const std::string& path) {
  struct stat info;
  if (stat(path.c_str(), &info) != 0) return {};
  if (S_ISDIR(info.st_mode)) return "is a folder";
  if (!S_ISREG(info.st_mode)) return "is not a regular file";
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return "cannot be read";
  char start[4096];
  const ssize_t count = read(file, start, sizeof start);
  close(file);
  if (count < 0) return "cannot be read";
  if (count == 0 || IsTagsFile({start, static_cast<std::size_t>(count)})) return {};
  return "is not a tags file";
}

OutputFile::~OutputFile() {
  if (descriptor > STDERR_FILENO) close(descriptor);
  if (!temporary.empty()) unlink(temporary.c_str());
}

bool OutputFile::Open(const std::string& path) {
  if (descriptor > STDERR_FILENO) close(descriptor);
  if (!temporary.empty()) unlink(temporary.c_str());
  temporary.clear();
  buffer.clear();
  isGood = true;
  if (path == "-") {
    descriptor = STDOUT_FILENO;
    return true;
  }
  target = Resolved(path);
  const std::size_t slash = target.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : target.substr(0, slash + 1);
  descriptor = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kNewMode);
  if (descriptor < 0) {
    // The file system may not have files without names.
    temporary = target + ".XXXXXX";
    descriptor = mkostemp(temporary.data(), O_CLOEXEC);
    if (descriptor < 0) temporary.clear();
    const mode_t mask = umask(0);
    umask(mask);
    if (descriptor >= 0) fchmod(descriptor, kNewMode & ~mask);
  }
  isGood = descriptor >= 0;
  struct stat old;
  if (isGood && stat(target.c_str(), &old) == 0) {
    // Without permission for this, the new file belongs to the user.
    const bool keepsOwner = fchown(descriptor, old.st_uid, old.st_gid) == 0;
    isGood = fchmod(descriptor, old.st_mode & (keepsOwner ? 07777 : 0777)) == 0;
  }
  return isGood;
}

bool OutputFile::Write(std::string_view bytes) {
  const bool isLarge = bytes.size() >= kLarge;
  if ((isLarge || buffer.size() + bytes.size() > kBuffer) && !Flush()) return false;
  if (!isLarge) {
    buffer += bytes;
  } else {
    isGood = isGood && WriteAll(descriptor, bytes);
  }
  return isGood;
}

bool OutputFile::Copy(int source, std::size_t begin, std::size_t size) {
  auto offset = static_cast<off_t>(begin);
  if (size >= kBuffer) {
    if (!Flush()) return false;
    ssize_t count = 1;
    while (size > 0 && count > 0) {
      count = copy_file_range(source, &offset, descriptor, nullptr, size, 0);
      if (count > 0) size -= static_cast<std::size_t>(count);
    }
  }
  // What is short, and all between files for which the system cannot do it.
  std::string bytes;
  while (isGood && size > 0) {
    bytes.resize(std::min(size, kBuffer));
    const ssize_t count = pread(source, bytes.data(), bytes.size(), offset);
    if (count < 0 && errno == EINTR) continue;
    isGood = count > 0 && Write({bytes.data(), static_cast<std::size_t>(count)});
    size -= static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    offset += count;
  }
  return isGood;
}

bool OutputFile::Flush() {
  isGood = isGood && WriteAll(descriptor, buffer);
  buffer.clear();
  return isGood;
}

bool OutputFile::Commit() {
  if (!Flush()) return false;
  if (descriptor == STDOUT_FILENO) return true;
  if (temporary.empty()) {
    const std::string name = target + ".new-" + std::to_string(getpid());
    unlink(name.c_str());
    const std::string open = "/proc/self/fd/" + std::to_string(descriptor);
    if (linkat(AT_FDCWD, open.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) != 0) {
      return isGood = false;
    }
    temporary = name;
  }
  isGood = rename(temporary.c_str(), target.c_str()) == 0;
  if (isGood) temporary.clear();
  isGood = isGood && fstat(descriptor, &status) == 0;
  isGood = close(descriptor) == 0 && isGood;
  descriptor = -1;
  return isGood;
}

}  // namespace vexltags::tree
