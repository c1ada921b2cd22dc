// SPDX-License-Identifier: MIT
// Runs the recogniser of Swift; the only code that includes its generated headers.
#include "engine/recognizer.h"
#include "swift/swift_scanner.h"
#include "swift/swift_tags_parser.h"

// Last, since they define every token name as a macro.
#include "swiftLexer.h"
#include "swiftParser.h"

namespace vexltags {
namespace {

struct SwiftGrammar {
  using Lexer = swiftLexer;
  using Parser = swiftParser;
  using Builder = SwiftTagsParser;
  using FileState = TagsLexerState;
  static constexpr bool kFiltersTokens = false;
  static constexpr bool kKeepsNeighbours = true;
  static constexpr Scanner Scan = ScanSwift;
  static pswiftLexer NewLexer(pANTLR3_INPUT_STREAM input) { return swiftLexerNew(input); }
  static pswiftParser NewParser(pANTLR3_COMMON_TOKEN_STREAM tokens) {
    return swiftParserNew(tokens);
  }
  static void Attach(pswiftLexer) {}
  static void Start(pswiftParser parser) { parser->inputStream(parser); }
  static void ReadItems(pswiftParser parser) { parser->inputTokens(parser); }
};

}  // namespace

std::unique_ptr<LanguageReader> NewSwiftReader(pANTLR3_INPUT_STREAM input) {
  return std::make_unique<GrammarReader<SwiftGrammar>>(input);
}

}  // namespace vexltags
