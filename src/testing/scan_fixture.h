// SPDX-License-Identifier: MIT
// Runs a scanner on a text for unit tests.
#pragma once

#include <antlr3.h>

#include <cstddef>
#include <string>
#include <vector>

#include "engine/token_feed.h"
#include "engine/token_table.h"

namespace vexltags::testing_support {

/// The result of a scanner.
struct Scanned {
  std::vector<std::string> tokens;  ///< "type:line:text" for each visible token.
  std::size_t stopped = 0;  ///< Where it stopped; the length of the text if it read all of it.
  unsigned line = 0;        ///< The 1-based line at that position.
  unsigned errors = 0;
};

/// Runs `scan` once on `text`, with the bytes of `after` following it in memory.
inline Scanned ScanText(Scanner scan, const std::string& text, const std::string& after) {
  std::vector<unsigned char> bytes(text.begin(), text.end());
  bytes.insert(bytes.end(), after.begin(), after.end());
  unsigned char name[] = "test";
  pANTLR3_INPUT_STREAM input = antlr3StringStreamNew(bytes.data(), ANTLR3_ENC_8BIT,
                                                     static_cast<ANTLR3_UINT32>(text.size()), name);
  Scanned scanned;
  {
    TokenTable table(input);
    const unsigned char* begin = bytes.data();
    ScanCursor cursor{begin, begin + text.size(), begin, 1, begin + 1, 0};
    scan(cursor, table);
    table.Finish(cursor.line);
    for (std::size_t i = 0; i < table.Count(); ++i) {
      const pANTLR3_COMMON_TOKEN token = table.Token(i);
      scanned.tokens.push_back(std::to_string(token->type) + ":" + std::to_string(token->line) +
                               ":" + table.Text(i, i));
    }
    scanned.stopped = static_cast<std::size_t>(cursor.at - begin);
    scanned.line = cursor.line;
    scanned.errors = cursor.errors;
  }
  input->close(input);
  return scanned;
}

/// The same, with the last byte of the text after it. A reused buffer holds anything there, and
/// what continues the last token is most harmful.
inline Scanned ScanText(Scanner scan, const std::string& text) {
  return ScanText(scan, text, std::string(1, text.empty() ? '\0' : text.back()));
}

}  // namespace vexltags::testing_support
