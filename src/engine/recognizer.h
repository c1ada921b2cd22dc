// SPDX-License-Identifier: MIT
// Owns the lexer, token stream and parser of one grammar and runs them over file after file.
#pragma once

#include <antlr3.h>

#include <memory>
#include <string>

#include "base/options.h"
#include "engine/error_recovery.h"
#include "engine/grammar_items.h"
#include "engine/language_reader.h"
#include "engine/loop_runs.h"
#include "engine/parser_ops.h"
#include "engine/reading.h"
#include "engine/token_feed.h"
#include "engine/token_stream.h"
#include "engine/token_table.h"
#include "engine/trial_table.h"
#include "output/dumper.h"

namespace vexltags {

/// The lexer and parser of one grammar with their tokens and memories. They read one input stream
/// and are reused for each file that it is given, except in a plain build.
///
/// `Grammar` names the generated types and functions:
/// - the types Lexer, Parser, Builder (the tag builder) and FileState (what lexer and parser share
///   for one file);
/// - NewLexer(input) and NewParser(tokens), the generated constructors, null on lack of memory;
/// - Start(parser), which calls the start rule;
/// - ReadItems(parser), which calls the rule of a run of items;
/// - Attach(lexer), which sets the other members of the lexer's context, for a new file;
/// - kFiltersTokens: whether the words of `-I` go into the file's filter set;
/// - kKeepsNeighbours: whether the parser needs the hidden neighbours of tokens;
/// - Scan, the scanner for common tokens, or null.
template <class Grammar>
class Recognizers {
 public:
  explicit Recognizers(pANTLR3_INPUT_STREAM stream)
      : input(stream), lexer(Grammar::NewLexer(stream)) {
    if (!lexer) return;
#ifdef VEXLTAGS_PLAIN
    static_cast<void>(Grammar::kKeepsNeighbours);  // A plain build has no use for these.
    static_cast<void>(Grammar::Scan);
    tokens.reset(
        antlr3CommonTokenStreamSourceNew(ANTLR3_SIZE_HINT, State(lexer->pLexer)->tokSource));
    if (tokens) parser.reset(Grammar::NewParser(tokens.get()));
#else
    table = std::make_unique<TokenTable>(stream);
    tokens = std::make_unique<TokenStream>(*table, lexer->pLexer);
    parser.reset(Grammar::NewParser(tokens->Stream()));
    if constexpr (Grammar::kKeepsNeighbours) table->KeepNeighbours();
#endif
  }

  /// Returns false if the runtime ran out of memory.
  bool AreComplete() const { return parser != nullptr; }
  /// Runs the grammar on the current file of the stream, or lets `reading` run it, if not null.
  RecognizerCounts Run(const Options& options, typename Grammar::FileState& fileState,
                       typename Grammar::Builder& builder, [[maybe_unused]] Reading* reading) {
#ifndef VEXLTAGS_PLAIN
    if (reading != nullptr) return RunBy(*reading, options, fileState, builder);
#endif
    // A scanner cannot report errors, so where they are shown the generated lexer reads everything.
    ReadTokens(options.dumpErrors ? nullptr : Grammar::Scan, options, fileState, builder);
    Grammar::Start(parser.get());
    return Counts();
  }

 private:
  struct Free {
    template <class Recognizer>
    void operator()(Recognizer* recognizer) const {
      recognizer->free(recognizer);
    }
  };

  template <class Base>
  static pANTLR3_RECOGNIZER_SHARED_STATE State(Base* base) {
    return base->rec->state;
  }

#ifndef VEXLTAGS_PLAIN
  RecognizerCounts RunBy(Reading& reading, const Options& options,
                         typename Grammar::FileState& fileState,
                         typename Grammar::Builder& builder) {
    fileState.LimitEachItem();
    reading.PrepareText(input);
    const ANTLR3_INPUT_STREAM start = *input;
    for (;;) {
      ReadTokens(reading.ScannerFor(Grammar::Scan), options, fileState, builder);
      if (reading.PrepareTokens(*table)) break;
      input->nextChar = start.nextChar;
      input->currentLine = start.currentLine;
      input->line = start.line;
      input->charPositionInLine = start.charPositionInLine;
    }
    GrammarItems<Grammar> items(parser.get());
    reading.Parse(items);
    return Counts();
  }
#endif

  /// Prepares for the file and reads all its tokens with `scan`, before the parser reads the first.
  void ReadTokens([[maybe_unused]] Scanner scan, const Options& options,
                  typename Grammar::FileState& fileState, typename Grammar::Builder& builder) {
    Reset();
    if (!options.dumpErrors) {
      SilenceErrors(lexer->pLexer->rec);
      SilenceErrors(parser->pParser->rec);
    }
    parser->builder = &builder;
    parser->fileState = &fileState;
    parser->trials = &trials;
    parser->loops = &loops;
    lexer->fileState = &fileState;
    grammar.Attach(lexer.get());
    if constexpr (Grammar::kFiltersTokens) {
      for (const std::string& word : options.filterTokens) {
        fileState.filterTokens.insert(word.c_str());
      }
    }
#ifdef VEXLTAGS_PLAIN
    parser->tokens = nullptr;
    parser->follows = nullptr;
    tokens->tstream->_LT(tokens->tstream, 1);
#else
    parser->tokens = table.get();
    parser->follows = &tokens->Follows();
    RecoverByFollowStack(parser->pParser->rec, !options.dumpErrors);
    // Only the generated lexer records them.
    if (options.dumpErrors && scan == nullptr) table->KeepPlaces();
    FillTokenTable(lexer->pLexer, scan, *table);
#endif
  }

  RecognizerCounts Counts() const {
    return {State(lexer->pLexer)->errorCount, State(parser->pParser)->errorCount};
  }

  void Reset() {
#ifndef VEXLTAGS_PLAIN
    table->Reset();
    tokens->Follows().Clear();
    trials.Reset();
    loops.Reset();
    ResetState(State(lexer->pLexer));
    ResetState(State(parser->pParser));
#endif
  }

  pANTLR3_INPUT_STREAM input;
  Grammar grammar;
  std::unique_ptr<typename Grammar::Lexer, Free> lexer;
#ifdef VEXLTAGS_PLAIN
  std::unique_ptr<ANTLR3_COMMON_TOKEN_STREAM, Free> tokens;
#else
  std::unique_ptr<TokenTable> table;
  std::unique_ptr<TokenStream> tokens;
#endif
  TrialTable trials;
  LoopRuns loops;
  std::unique_ptr<typename Grammar::Parser, Free>
      parser;  ///< Freed first, since it refers to the others.
};

/// Reads files by `Grammar`. The recognisers are kept for the next file.
template <class Grammar>
class GrammarReader final : public LanguageReader {
 public:
  /// `stream` must outlive the reader.
  explicit GrammarReader(pANTLR3_INPUT_STREAM stream) : input(stream) {}

  RecognizerCounts Run(const Options& options, Dumper& dumper, const std::string& stored,
                       Reading* reading) override {
    typename Grammar::Builder builder(options, dumper, stored);
    typename Grammar::FileState fileState(stored, options.reportIfLonger, options.abortIfLonger);
    // Recognisers that show errors are not reused: they keep the records of errors.
    if (!kept || options.dumpErrors) kept = std::make_unique<Recognizers<Grammar>>(input);
    RecognizerCounts counts;
    if (kept->AreComplete()) counts = kept->Run(options, fileState, builder, reading);
    // The tables of a large file are not worth their memory.
    constexpr ANTLR3_UINT32 kLargeFile = 1 << 22;
    const bool isLarge = input->sizeBuf > kLargeFile;
    if (!kReadsTable || options.dumpErrors || isLarge) kept.reset();
    return counts;
  }

 private:
  pANTLR3_INPUT_STREAM input;
  std::unique_ptr<Recognizers<Grammar>> kept;
};

}  // namespace vexltags
