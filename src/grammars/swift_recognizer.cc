// SPDX-License-Identifier: MIT
// Runs the Swift grammar over one file: the one place that sees its generated names.
#include "grammars/swift_recognizer.h"

#include "swift/swift_scanner.h"
#include "swift/swift_tags_parser.h"

// Last: these headers define every token name as a macro.
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
};

}  // namespace

RecognizerCounts RunSwift(pANTLR3_INPUT_STREAM input, const Options& options, Dumper& dumper,
                          const std::string& stored) {
  return RunRecognizer<SwiftGrammar>(input, options, dumper, stored);
}

}  // namespace vexltags
