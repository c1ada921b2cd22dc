// SPDX-License-Identifier: MIT
// Runs the recogniser of Python; the only code that includes its generated headers.
#include "engine/recognizer.h"
#include "python/python_scanner.h"
#include "python/python_tags_parser.h"

// Last, since they define every token name as a macro.
#include "pythonLexer.h"
#include "pythonParser.h"

namespace vexltags {
namespace {

struct PythonGrammar {
  using Lexer = pythonLexer;
  using Parser = pythonParser;
  using Builder = PythonTagsParser;
  using FileState = TagsLexerState;
  static constexpr bool kFiltersTokens = true;
  static constexpr bool kKeepsNeighbours = false;
  static constexpr Scanner Scan = ScanPython;
  static ppythonLexer NewLexer(pANTLR3_INPUT_STREAM input) { return pythonLexerNew(input); }
  static ppythonParser NewParser(pANTLR3_COMMON_TOKEN_STREAM tokens) {
    return pythonParserNew(tokens);
  }
  static void Attach(ppythonLexer) {}
  static void Start(ppythonParser parser) { parser->inputStream(parser); }
  static void ReadItems(ppythonParser parser) { parser->inputTokens(parser); }
};

}  // namespace

std::unique_ptr<LanguageReader> NewPythonReader(pANTLR3_INPUT_STREAM input) {
  return std::make_unique<GrammarReader<PythonGrammar>>(input);
}

}  // namespace vexltags
