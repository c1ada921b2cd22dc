// SPDX-License-Identifier: MIT
// Prints the tokens of a C, C++ or Objective-C file, hidden ones included: a test aid.
//
//   main_tokens [-I WORD]... FILE    one line per token: type, channel, line, "text"; then the
//                                    number of lexical errors
//   main_tokens --types              the number and name of every token type
#include <cstdio>
#include <cstring>
#include <string>

#include <antlr3.h>

#include "cfamily/directives.h"
#include "parserstate/lexer_state.h"
#include "vocabulary/main_tokens.h"

// The generated headers define every token name as a macro, so they come last.
#include "mainLexer.h"
#include "mainParser.h"

namespace {

void AppendQuoted(std::string& quoted, char c) {
  switch (c) {
    case '\n':
      quoted += "\\n";
      return;
    case '\r':
      quoted += "\\r";
      return;
    case '\t':
      quoted += "\\t";
      return;
    case '\\':
      quoted += "\\\\";
      return;
    case '"':
      quoted += "\\\"";
      return;
    default:
      break;
  }
  if (c >= ' ' && c <= '~') {
    quoted += c;
  } else {
    char hex[5];
    std::snprintf(hex, sizeof hex, "\\x%02x", static_cast<unsigned char>(c));
    quoted += hex;
  }
}

std::string Quoted(const char* begin, const char* end) {
  std::string quoted = "\"";
  for (; begin != end; ++begin) AppendQuoted(quoted, *begin);
  return quoted + '"';
}

void PrintTypes(pANTLR3_UINT8* names) {
  for (unsigned type = 0; type < vexltags::kMainTokenTypeCount; ++type) {
    std::printf("%u %s\n", type, reinterpret_cast<const char*>(names[type]));
  }
}

void PrintToken(pANTLR3_COMMON_TOKEN token, pANTLR3_UINT8* names) {
  // A replaced text is a string of its own; any other is the stretch of the input.
  std::string text;
  if (token->textState == ANTLR3_TEXT_STRING) {
    const pANTLR3_STRING replaced = token->tokText.text;
    const auto* const chars = reinterpret_cast<const char*>(replaced->chars);
    text = Quoted(chars, chars + replaced->len);
  } else {
    // The runtime keeps addresses as numbers.
    text = Quoted(reinterpret_cast<const char*>(token->getStartIndex(token)),      // NOLINT
                  reinterpret_cast<const char*>(token->getStopIndex(token)) + 1);  // NOLINT
  }
  std::printf("%s %u %u %s\n", reinterpret_cast<const char*>(names[token->getType(token)]),
              token->getChannel(token), token->getLine(token), text.c_str());
}

void IgnoreError(pANTLR3_BASE_RECOGNIZER, pANTLR3_UINT8*) {}

}  // namespace

int main(int argc, char** argv) {
  int arg = 1;
  vexltags::TagsLexerState state("", 0, 0);
  for (; arg + 1 < argc && std::strcmp(argv[arg], "-I") == 0; arg += 2) {
    state.filterTokens.insert(argv[arg + 1]);
  }
  if (arg + 1 != argc) {
    std::fputs("usage: main_tokens [-I WORD]... FILE | --types\n", stderr);
    return 2;
  }
  const bool types_only = std::strcmp(argv[arg], "--types") == 0;
  static char empty[] = "";
  const pANTLR3_INPUT_STREAM input =
      types_only ? antlr3StringStreamNew(reinterpret_cast<pANTLR3_UINT8>(empty), ANTLR3_ENC_8BIT, 0,
                                         reinterpret_cast<pANTLR3_UINT8>(empty))
                 : antlr3FileStreamNew(reinterpret_cast<pANTLR3_UINT8>(argv[arg]), ANTLR3_ENC_8BIT);
  if (input == nullptr) {
    std::fprintf(stderr, "main_tokens: cannot read %s\n", argv[arg]);
    return 1;
  }
  vexltags::ConditionalMemo conditionals;
  const pmainLexer lexer = mainLexerNew(input);
  lexer->fileState = &state;
  lexer->conditionals = &conditionals;
  lexer->pLexer->rec->displayRecognitionError = IgnoreError;
  const pANTLR3_TOKEN_SOURCE source = lexer->pLexer->rec->state->tokSource;
  const pANTLR3_COMMON_TOKEN_STREAM tokens = antlr3CommonTokenStreamSourceNew(1025, source);
  const pmainParser parser = mainParserNew(tokens);
  pANTLR3_UINT8* const names = parser->pParser->rec->state->tokenNames;

  if (types_only) {
    PrintTypes(names);
  } else {
    for (auto* token = source->nextToken(source); token->getType(token) != ANTLR3_TOKEN_EOF;
         token = source->nextToken(source)) {
      PrintToken(token, names);
    }
    std::printf("errors %u, lines %u\n", lexer->pLexer->rec->state->errorCount, input->line);
  }
  parser->free(parser);
  tokens->free(tokens);
  lexer->free(lexer);
  input->close(input);
  return 0;
}
