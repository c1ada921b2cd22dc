// SPDX-License-Identifier: MIT
// Blocks of which no more than the braces are read as tokens.
#include "thorough/skipped_block.h"

#include <algorithm>
#include <cstddef>

#include "base/byte_search.h"
#include "engine/scanner_base.h"
#include "thorough/declaration_outline.h"
#include "thorough/main_literals.h"
#include "thorough/source_text.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

/// How far back the head of a block is read.
constexpr std::size_t kLongestHead = 256;

/// True for the tokens that can be the last one of the head of a function.
bool EndsHead(unsigned type) {
  return type == kMainRParen || type == kMainId || type == kMainKw_const ||
         type == kMainKw_override || type == kMainKw_noexcept || type == kMainNoexceptMacro ||
         type == kMainGreater || type == kMainAmpersand || type == kMainAnd || type == kMainStar ||
         IsBuiltInType(type);
}

/// True if a `{` after all tokens of `table` most likely opens a body or an initializer.
bool OpensBlock(const TokenTable& table) {
  if (table.Count() == 0) return false;
  const unsigned last = table.TypeAt(table.Count() - 1);
  if (last == kMainAssign) return true;
  if (!EndsHead(last)) return false;
  const std::size_t least = table.Count() - std::min(table.Count(), kLongestHead);
  bool hasParameters = false;
  int depth = 0;
  for (std::size_t i = table.Count(); i-- > least;) {
    const unsigned type = table.TypeAt(i);
    if (type == kMainRParen) {
      ++depth;
      hasParameters = true;
    } else if (type == kMainLParen) {
      if (--depth < 0) return false;
    } else if (depth > 0) {
      continue;
    } else if (type == kMainSemicolon || type == kMainLCurly || type == kMainRCurly ||
               type == kMainDefine || type == kMainEnd) {
      break;
    } else if (type == kMainAssign) {
      return true;
    } else if (type == kMainPlus || type == kMainMinus) {
      // A method: `- (int)name {`
      if (i + 1 < table.Count() && table.TypeAt(i + 1) == kMainLParen) return true;
    } else if (type == kMainKw_namespace || type == kMainKw_enum || type == kMainNsOptionsMacro ||
               type == kMainInterface || type == kMainProtocol || type == kMainImplementation) {
      return false;
    } else if (IsClassKey(type)) {
      const unsigned before = i > 0 ? table.TypeAt(i - 1) : 0;
      const bool isParameter = before == kMainLess || before == kMainComma;
      if (!isParameter && last != kMainRParen) return false;
    }
  }
  return hasParameters;
}

class BlockScanner : public ScannerBase {
 public:
  using ScannerBase::ScannerBase;

  /// Takes the text from the `{` at the current position up to the `}` at `close` as one token.
  void TakeTo(const Byte* close) {
    const bool hasStatement = FindByte(';', at, close) != close;
    TakeLines(kMainLCurly, close);
    // Where the head cannot be read the parser goes on after a semicolon.
    if (hasStatement) Take(kMainSemicolon, close);
    Leave();
  }
};

}  // namespace

bool SkipBlock(ScanCursor& cursor, TokenTable& table) {
  if (cursor.at < cursor.readTo || !OpensBlock(table)) return false;
  SourceText source({reinterpret_cast<const char*>(cursor.begin),
                     static_cast<std::size_t>(cursor.end - cursor.begin)});
  const std::size_t close = source.FindBlockEnd(static_cast<std::size_t>(cursor.at - cursor.begin));
  if (close == std::string_view::npos) {
    // What is in this block would be looked at again for each block in it.
    cursor.readTo = cursor.begin + source.Position();
    return false;
  }
  const unsigned char* const end = cursor.begin + close;
  if (end == cursor.at + 1) return false;
  BlockScanner(cursor, table).TakeTo(end);
  return true;
}

}  // namespace vexltags::thorough
