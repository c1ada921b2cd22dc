// SPDX-License-Identifier: MIT
// Reads source files.
#include "driver/source_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>

namespace vexltags {
namespace {

/// Owns a file descriptor.
class Descriptor {
 public:
  explicit Descriptor(int number) : number(number) {}
  ~Descriptor() {
    if (number >= 0) close(number);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Number() const { return number; }

 private:
  int number;
};

/// Returns whether the file is the null device, which reads as an empty file. Reading other special
/// files could block or never end.
bool IsNullDevice(const struct stat& status) {
  struct stat null;
  return S_ISCHR(status.st_mode) && stat("/dev/null", &null) == 0 && S_ISCHR(null.st_mode) &&
         status.st_rdev == null.st_rdev;
}

/// Reads to the end of the file, which can grow or shrink meanwhile; `expected` is its size
/// according to the file system. `bytes` always has room for one more character, so that it is
/// never empty.
bool ReadAll(int file, std::size_t expected, std::vector<ANTLR3_UINT8>& bytes,
             std::size_t& length) {
  constexpr std::size_t kLargest = UINT32_MAX - 1;
  if (bytes.size() < expected + 1) bytes.resize(expected + 1);
  std::size_t size = 0;
  for (;;) {
    if (size == bytes.size()) bytes.resize(bytes.size() * 2);
    const ssize_t count = read(file, bytes.data() + size, bytes.size() - size);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    if (count == 0) break;
    size += static_cast<std::size_t>(count);
    // The expected size without filling the buffer means the end of the file. This saves a read,
    // but does not apply to kernel files, whose reported size is 0.
    if (size == expected && size < bytes.size()) break;
    if (size > kLargest) return false;
  }
  length = size;
  return true;
}

}  // namespace

bool SourceFile::Read(const std::string& path) {
  // Without O_NONBLOCK, opening a FIFO waits for a writer.
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (file.Number() < 0) return false;
  struct stat status;
  if (fstat(file.Number(), &status) != 0) return false;
  if (!S_ISREG(status.st_mode) && !IsNullDevice(status)) return false;
  if (static_cast<std::uint64_t>(status.st_size) >= UINT32_MAX) return false;
  std::size_t length = 0;
  if (!ReadAll(file.Number(), static_cast<std::size_t>(status.st_size), bytes, length))
    return false;
  return Open(length, path);
}

bool SourceFile::Take(const std::string& path, std::string_view text) {
  if (text.size() >= UINT32_MAX) return false;
  // Room for one more, so that the buffer is never empty.
  if (bytes.size() < text.size() + 1) bytes.resize(text.size() + 1);
  std::copy(text.begin(), text.end(), bytes.begin());
  return Open(text.size(), path);
}

bool SourceFile::Open(std::size_t length, const std::string& streamName) {
  const auto size = static_cast<ANTLR3_UINT32>(length);
  std::vector<ANTLR3_UINT8> name(streamName.begin(), streamName.end());
  name.push_back(0);
  if (input == nullptr) {
    input.reset(antlr3StringStreamNew(bytes.data(), ANTLR3_ENC_8BIT, size, name.data()));
    return input != nullptr;
  }
  // Frees the strings of the last file, which belong to the stream's factory.
  input->strFactory->close(input->strFactory);
  input->strFactory = antlr3StringFactoryNew(ANTLR3_ENC_8BIT);
  input->istream->streamName = nullptr;
  input->reuse(input.get(), bytes.data(), size, name.data());
  return true;
}

}  // namespace vexltags
