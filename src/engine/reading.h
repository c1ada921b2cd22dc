// SPDX-License-Identifier: MIT
// The hook for reading a file differently from its grammar alone.
#pragma once

#include <antlr3.h>

#include <any>

#include "engine/token_feed.h"
#include "engine/token_table.h"

namespace vexltags {

/// The parser of one file, driven by a `Reading`. An item is one repetition in the
/// grammar's start rule: a declaration, a brace, a directive.
class ItemParser {
 public:
  virtual ~ItemParser() = default;

  /// Returns the tokens of the file, whose position is that of the parser.
  virtual TokenTable& Tokens() = 0;
  /// Reads items from the current token until none can begin, like the start rule without the end
  /// of the file. A grammar may report an error if none can begin at once. If the file has exceeded
  /// its time limit, seeks to its end.
  virtual void ReadItems() = 0;

  /// Returns the tag builder of the file, which must be a `Builder`.
  template <class Builder>
  Builder& TagBuilder() {
    return *std::any_cast<Builder*>(AnyTagBuilder());
  }

 private:
  /// Returns a pointer to the tag builder with its actual type.
  virtual std::any AnyTagBuilder() = 0;
};

/// Changes how files of one language are read. Without one, a file is read by its grammar alone.
/// The functions are called once for each file, in the order below, but for the second and the
/// third, which can be called again.
class Reading {
 public:
  virtual ~Reading() = default;

  /// Called before the first token. Can replace characters in place or let the stream read a
  /// changed copy, which must outlive the run of this file.
  virtual void PrepareText(pANTLR3_INPUT_STREAM input) = 0;
  /// The scanner that reads the text as tokens; `exact` is the one that the grammar has.
  virtual Scanner ScannerFor(Scanner exact) { return exact; }
  /// Called when all tokens are there and the parser has read none yet. Returns false if they must
  /// be read again, by another scanner, and be prepared again.
  virtual bool PrepareTokens(TokenTable& tokens) = 0;
  /// Replaces the grammar's start rule.
  virtual void Parse(ItemParser& parser) = 0;
};

}  // namespace vexltags
