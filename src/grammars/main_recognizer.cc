// SPDX-License-Identifier: MIT
// Runs the recogniser of C, C++ and Objective-C; the only code that includes its generated headers.
#include "cfamily/directives.h"
#include "cfamily/main_scanner.h"
#include "cfamily/vexl_tags_parser.h"
#include "engine/recognizer.h"

// Last, since they define every token name as a macro.
#include "mainLexer.h"
#include "mainParser.h"

namespace vexltags {
namespace {

struct MainGrammar {
  using Lexer = mainLexer;
  using Parser = mainParser;
  using Builder = VexlTagsParser;
  using FileState = TagsLexerState;
  static constexpr bool kFiltersTokens = false;
  static constexpr bool kKeepsNeighbours = false;
  static constexpr Scanner Scan = ScanMain;

  static pmainLexer NewLexer(pANTLR3_INPUT_STREAM input) { return mainLexerNew(input); }
  static pmainParser NewParser(pANTLR3_COMMON_TOKEN_STREAM tokens) { return mainParserNew(tokens); }
  void Attach(pmainLexer lexer) {
    conditionals = ConditionalMemo();
    lexer->conditionals = &conditionals;
  }
  static void Start(pmainParser parser) { parser->inputStream(parser); }
  static void ReadItems(pmainParser parser) { parser->inputTokens(parser); }

  /// What the lexer knows of the conditionals of the file.
  ConditionalMemo conditionals;
};

}  // namespace

std::unique_ptr<LanguageReader> NewMainReader(pANTLR3_INPUT_STREAM input) {
  return std::make_unique<GrammarReader<MainGrammar>>(input);
}

}  // namespace vexltags
