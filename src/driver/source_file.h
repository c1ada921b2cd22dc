// SPDX-License-Identifier: MIT
// A source file in memory, as the recognisers read it.
#pragma once

#include <antlr3.h>

#include <memory>
#include <string>
#include <vector>

namespace vexltags {

/// Holds the bytes of one regular file and the runtime's input stream over them, one character per
/// byte with no decoding. Can read one file after the other; buffer and stream are then used again.
class SourceFile {
 public:
  /// Reads the file at `path` whole; the null device is an empty file. False when the path names a
  /// directory, FIFO, socket or any other device, cannot be opened or read, or has 4 GiB or more.
  bool Read(const std::string& path);

  /// The input stream at the start of the file; null before the first successful `Read`. After a
  /// parse its `line` is the number of newlines that the lexer went past, plus 1.
  pANTLR3_INPUT_STREAM Input() const { return input.get(); }

 private:
  struct Close {
    void operator()(pANTLR3_INPUT_STREAM stream) const { stream->close(stream); }
  };

  std::vector<ANTLR3_UINT8> bytes;
  std::unique_ptr<ANTLR3_INPUT_STREAM, Close> input;
};

}  // namespace vexltags
