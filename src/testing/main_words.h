// SPDX-License-Identifier: MIT
// Makes the words of C-family declarations from their text, for unit tests.
#pragma once

#include <antlr3.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "cfamily/main_scanner.h"
#include "engine/token_table.h"
#include "thorough/declaration_outline.h"
#include "thorough/main_literals.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::testing_support {

/// A text of the C family and its tokens. The `@` words and the accessors of Objective-C, which the
/// scanner leaves to the lexer, are among them; no other token of the lexer's is.
class MainText {
 public:
  explicit MainText(std::string_view source) : text(source) {
    stream = antlr3StringStreamNew(reinterpret_cast<pANTLR3_UINT8>(text.data()), ANTLR3_ENC_8BIT,
                                   static_cast<ANTLR3_UINT32>(text.size()), name);
    table = std::make_unique<TokenTable>(stream);
    const auto* const begin = reinterpret_cast<const unsigned char*>(text.data());
    ScanCursor cursor{begin, begin + text.size(), begin, 1, begin, 0};
    for (ScanMain(cursor, *table); cursor.at < cursor.end; ScanMain(cursor, *table)) {
      if (!AddLexerWord(cursor)) break;
    }
    isComplete = cursor.at == cursor.end;
    table->Finish(cursor.line);
  }
  ~MainText() {
    table.reset();
    stream->close(stream);
  }
  MainText(const MainText&) = delete;
  MainText& operator=(const MainText&) = delete;

  TokenTable& Tokens() { return *table; }
  /// False if the scanner has stopped before the end of the text.
  bool IsComplete() const { return isComplete; }

  /// All tokens as words. With `joinBlocks`, braces and what is between them are one word, as they
  /// are in functions and initialisers.
  thorough::Words Words(bool joinBlocks = false) const {
    thorough::Words words;
    int depth = 0;
    for (std::size_t i = 0; i < table->Count(); ++i) {
      const unsigned type = table->TypeAt(i);
      const bool isInside = depth > 0;
      if (joinBlocks && type == kMainLCurly) ++depth;
      if (isInside) {
        ++words.back().span;
        if (type == kMainRCurly) --depth;
        continue;
      }
      words.push_back(
          {type, table->SourceAt(i), table->LineAt(i), static_cast<std::int32_t>(i), 1});
    }
    return words;
  }

  /// The texts of `words`, with a blank between two. A block is `{}`, and a word whose type is not
  /// that of the token it comes from has a `^` after it.
  std::string Show(const thorough::Words& words) const {
    std::string shown;
    for (const thorough::Word& word : words) {
      if (!shown.empty()) shown += ' ';
      shown += word.span == 1 ? word.text : "{}";
      if (word.index >= 0 && word.type != table->TypeAt(static_cast<std::size_t>(word.index))) {
        shown += '^';
      }
    }
    return shown;
  }

 private:
  bool AddLexerWord(ScanCursor& cursor) {
    const std::string_view ahead(reinterpret_cast<const char*>(cursor.at),
                                 static_cast<std::size_t>(cursor.end - cursor.at));
    struct LexerWord {
      std::string_view text;
      unsigned type;
    };
    for (const LexerWord& word :
         {LexerWord{"@interface", kMainInterface},
          LexerWord{"@implementation", kMainImplementation}, LexerWord{"@protocol", kMainProtocol},
          LexerWord{"@property", thorough::kMainProperty},
          LexerWord{"@synthesize", thorough::kMainSynthesize}, LexerWord{"@end", kMainEnd},
          LexerWord{"getter=", thorough::kMainGetter},
          LexerWord{"setter=", thorough::kMainSetter}}) {
      if (!ahead.starts_with(word.text)) continue;
      table->Add(word.type, cursor.at, cursor.at + word.text.size(), cursor.line);
      cursor.at += word.text.size();
      return true;
    }
    return false;
  }

  std::string text;
  unsigned char name[5] = "test";
  pANTLR3_INPUT_STREAM stream = nullptr;
  std::unique_ptr<TokenTable> table;
  bool isComplete = false;
};

}  // namespace vexltags::testing_support
