// SPDX-License-Identifier: MIT
// Runs the grammar of C, C++ and Objective-C: the one place that sees its generated names.
#include "grammars/main_recognizer.h"

#include "cfamily/directives.h"
#include "cfamily/main_scanner.h"
#include "cfamily/main_tokens.h"
#include "cfamily/vexl_tags_parser.h"
#include "engine/recognizer.h"

// Last: these headers define every token name as a macro.
#include "mainLexer.h"
#include "mainParser.h"

vexltags::ItemTrial mainTryItem(void* parser);  // In main_trials.cc.

// The scanner's numbers are the vocabulary's.
static_assert(RCURLY == vexltags::kMainRCurly && LCURLY == vexltags::kMainLCurly &&
              ID == vexltags::kMainId && COLON == vexltags::kMainColon &&
              LESSTHAN == vexltags::kMainLess && GREATERTHAN == vexltags::kMainGreater &&
              ASSIGN == vexltags::kMainAssign && BITWISEOREQUAL == vexltags::kMainOrEqual &&
              QUESTIONMARK == vexltags::kMainQuestionMark && MOD == vexltags::kMainMod &&
              POINTERTO == vexltags::kMainPointerTo && Number == vexltags::kMainNumber &&
              NOT == vexltags::kMainNot && Define == vexltags::kMainDefine &&
              SPACESHIP == vexltags::kMainSpaceship && T__92 == vexltags::kMainFirstKeyword &&
              T__96 == vexltags::kMainBeginNamespaceStd && T__105 == vexltags::kMainConstexpr &&
              T__142 == vexltags::kMainChar && T__154 == vexltags::kMainVoid &&
              T__162 == vexltags::kMainConst && T__163 == vexltags::kMainVolatile &&
              COMMA == vexltags::kMainComma && RPAREN == vexltags::kMainRParen &&
              SEMICOLON == vexltags::kMainSemicolon && SCOPE == vexltags::kMainScope &&
              STAR == vexltags::kMainStar && AMPERSAND == vexltags::kMainAmpersand &&
              AND == vexltags::kMainAnd);

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
  static void ReadItem(pmainParser parser) { parser->inputToken1(parser); }
  static ItemTrial TryItem(pmainParser parser) { return mainTryItem(parser); }

  /// What the lexer has learned of the file's conditionals.
  ConditionalMemo conditionals;
};

}  // namespace

std::unique_ptr<LanguageReader> NewMainReader(pANTLR3_INPUT_STREAM input) {
  return std::make_unique<GrammarReader<MainGrammar>>(input);
}

}  // namespace vexltags
