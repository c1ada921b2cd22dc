// SPDX-License-Identifier: MIT
// The body of a macro as tokens.
#pragma once

#include <antlr3.h>

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "engine/token_table.h"
#include "thorough/macro_table.h"

namespace vexltags::thorough {

/// Types of tokens that only macro bodies have, beyond those of the vocabulary.
enum MacroToken : unsigned { kMacroHash = 1000, kMacroPaste = 1001 };

/// One token of a body.
struct BodyToken {
  unsigned type = 0;
  std::int32_t parameter = -1;  ///< The number of the parameter that it names, -1 for none.
  std::string_view text;
};

/// The body of a definition as tokens.
struct MacroBody {
  std::vector<BodyToken> tokens;
  std::size_t parameterCount = 0;
  bool isFunction = false;
  bool isVariadic = false;  ///< The last parameter takes all remaining arguments.
};

/// Reads bodies into tokens with the scanner of the C family, each of them once.
class MacroBodies {
 public:
  MacroBodies();
  ~MacroBodies();
  MacroBodies(const MacroBodies&) = delete;
  MacroBodies& operator=(const MacroBodies&) = delete;

  /// Returns the tokens of `definition`, which must outlive this object. What the lexer hides is
  /// left out: comments, and annotations with their arguments.
  const MacroBody& Of(const MacroDefinition& definition);

  /// Returns the type of the first token of `text`; that of an identifier if it has none.
  unsigned TypeOf(std::string_view text);

 private:
  struct FreeStream {
    void operator()(pANTLR3_INPUT_STREAM stream) const { stream->free(stream); }
  };

  void Read(std::string_view text, MacroBody& body);

  std::unordered_map<const MacroDefinition*, std::unique_ptr<MacroBody>> bodies;
  std::unique_ptr<ANTLR3_INPUT_STREAM, FreeStream> stream;
  std::unique_ptr<TokenTable> table;
};

}  // namespace vexltags::thorough
