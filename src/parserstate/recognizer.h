// SPDX-License-Identifier: MIT
// Owns the lexer, token stream and parser of one grammar and runs them over one file.
#pragma once

#include <antlr3.h>

#include <memory>
#include <string>

#include "driver/options.h"
#include "output/dumper.h"
#include "parserstate/error_recovery.h"
#include "parserstate/lexer_state.h"
#include "parserstate/token_feed.h"
#include "parserstate/token_stream.h"
#include "parserstate/token_table.h"
#include "parserstate/trial_table.h"

namespace vexltags {

/// How many errors the two recognisers of a file counted.
struct RecognizerCounts {
  unsigned lexerErrors = 0;
  unsigned parserErrors = 0;
};

/// Runs one grammar over `input`, from its start rule on. Tags go to `dumper`.
///
/// `Grammar` names the generated types and functions:
///   Lexer, Parser, Builder               types; Builder(options, dumper, stored) is the tag
///   builder NewLexer(input), NewParser(tokens)   the generated constructors, null on lack of
///   memory Start(parser)                        calls the start rule Attach(lexer) sets what else
///   the lexer's context holds; it belongs to
///                                        the `Grammar` object, which lives as long as the lexer
///   kFiltersTokens                       whether the words of `-I` go into the file's filter set
///   kKeepsNeighbours                     whether the parser asks what stands beside a token
///   Scan                                 the scanner for common ground, or null
///
/// `stored` is the file's path as it goes into tags. A syntax error is no failure: the counts in
/// the result are its only trace.
template <class Grammar>
RecognizerCounts RunRecognizer(pANTLR3_INPUT_STREAM input, const Options& options, Dumper& dumper,
                               const std::string& stored) {
  RecognizerCounts counts;
  Grammar grammar;
  const auto free = [](auto* recognizer) { recognizer->free(recognizer); };
  std::unique_ptr<typename Grammar::Lexer, decltype(free)> lexer(Grammar::NewLexer(input), free);
  if (!lexer) return counts;
#ifdef VEXLTAGS_PLAIN
  std::unique_ptr<ANTLR3_COMMON_TOKEN_STREAM, decltype(free)> stream(
      antlr3CommonTokenStreamSourceNew(ANTLR3_SIZE_HINT, lexer->pLexer->rec->state->tokSource),
      free);
  if (!stream) return counts;
  std::unique_ptr<typename Grammar::Parser, decltype(free)> parser(Grammar::NewParser(stream.get()),
                                                                   free);
#else
  TokenTable table(input);
  TokenStream stream(table, lexer->pLexer);
  std::unique_ptr<typename Grammar::Parser, decltype(free)> parser(
      Grammar::NewParser(stream.Stream()), free);
#endif
  if (!parser) return counts;
  if (!options.dumpErrors) {
    SilenceErrors(lexer->pLexer->rec);
    SilenceErrors(parser->pParser->rec);
  }

  typename Grammar::Builder builder(options, dumper, stored);
  TagsLexerState fileState(stored, options.reportIfLonger, options.abortIfLonger);
  TrialTable trials;
  parser->builder = &builder;
  parser->fileState = &fileState;
  parser->trials = &trials;
  lexer->fileState = &fileState;
  grammar.Attach(lexer.get());
  if constexpr (Grammar::kFiltersTokens) {
    for (const std::string& word : options.filterTokens)
      fileState.filterTokens.insert(word.c_str());
  }

  // The whole file is read as tokens before the parser gets the first one.
#ifdef VEXLTAGS_PLAIN
  parser->tokens = nullptr;
  parser->follows = nullptr;
  stream->tstream->_LT(stream->tstream, 1);
#else
  parser->tokens = &table;
  parser->follows = &stream.Follows();
  RecoverByFollowStack(parser->pParser->rec);
  if constexpr (Grammar::kKeepsNeighbours) table.KeepNeighbours();
  // A scanner has no words for an error, so where errors are shown the generated lexer reads all.
  FillTokenTable(lexer->pLexer, options.dumpErrors ? nullptr : Grammar::Scan, table);
#endif
  Grammar::Start(parser.get());

  counts.lexerErrors = lexer->pLexer->rec->state->errorCount;
  counts.parserErrors = parser->pParser->rec->state->errorCount;
  // Before the file's state goes and reports the time: freeing them counts.
  parser.reset();
#ifdef VEXLTAGS_PLAIN
  stream.reset();
#endif
  lexer.reset();
  return counts;
}

}  // namespace vexltags
