// SPDX-License-Identifier: MIT
// A source file in memory.
#pragma once

#include <antlr3.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vexltags {

/// The bytes of a file and the runtime's input stream over them, with one character per byte and no
/// decoding. Can read several files in turn, reusing buffer and stream.
class SourceFile {
 public:
  /// Reads the file at `path`; the null device is an empty file. Returns false if the path names a
  /// directory, FIFO, socket or other device, cannot be opened or read, or has 4 GiB or more.
  bool Read(const std::string& path);

  /// Takes a copy of `text`, of less than 4 GiB, for the content of the file at `path`, which is
  /// not read.
  bool Take(const std::string& path, std::string_view text);

  /// Returns the input stream, positioned at the start of the file; null before the first
  /// successful `Read`. After a parse, its `line` is 1 plus the number of newlines that the lexer
  /// has read.
  pANTLR3_INPUT_STREAM Input() const { return input.get(); }

  /// Returns the bytes of the file, which a reading can change.
  std::string_view Text() const { return {static_cast<const char*>(input->data), input->sizeBuf}; }

 private:
  struct Close {
    void operator()(pANTLR3_INPUT_STREAM stream) const { stream->close(stream); }
  };

  /// Lets the stream begin with the first `length` bytes of the buffer.
  bool Open(std::size_t length, const std::string& name);

  std::vector<ANTLR3_UINT8> bytes;
  std::unique_ptr<ANTLR3_INPUT_STREAM, Close> input;
};

}  // namespace vexltags
