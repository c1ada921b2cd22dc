// SPDX-License-Identifier: MIT
// The hook by which a file can be read in another way than by its grammar alone.
#pragma once

#include <antlr3.h>

#include <any>

#include "engine/token_table.h"

namespace vexltags {

/// What a `Reading` drives: the parser of one file, item by item. An item is what the grammar's
/// start rule repeats: a declaration, a brace, a directive.
class ItemParser {
 public:
  virtual ~ItemParser() = default;

  /// The tokens of the file. Its position is that of the parser.
  virtual TokenTable& Tokens() = 0;
  /// Reads items from the current token on, as the grammar does, until none can begin: the start
  /// rule without the end of the file. Where the file is over its time limit, goes to the end.
  virtual void ReadItems() = 0;
  /// Reads one item. True if no syntax error was met. After an error the position is anywhere
  /// within the item or directly after it.
  virtual bool ReadItem() = 0;
  /// True if an item parses from the current token on. The parse is speculative: no action runs and
  /// the position stays. Its outcome may be kept, so tokens must not change any more.
  virtual bool ItemParses() = 0;

  /// The tag builder of the file, which must be a `Builder`.
  template <class Builder>
  Builder& TagBuilder() {
    return *std::any_cast<Builder*>(AnyTagBuilder());
  }

 private:
  /// A pointer to the tag builder, of its own type.
  virtual std::any AnyTagBuilder() = 0;
};

/// Changes how files of one language are read. Without one, a file is read by its grammar alone.
/// The functions are called once for each file, in the order below.
class Reading {
 public:
  virtual ~Reading() = default;

  /// Called before the first token. May replace characters in place, or point the stream at a
  /// changed copy that outlives the run of this file.
  virtual void PrepareText(pANTLR3_INPUT_STREAM input) = 0;
  /// Called when all tokens are there and the parser has read none yet.
  virtual void PrepareTokens(TokenTable& tokens) = 0;
  /// Takes the place of the grammar's start rule.
  virtual void Parse(ItemParser& parser) = 0;
};

}  // namespace vexltags
