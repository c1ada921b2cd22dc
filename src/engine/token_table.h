// SPDX-License-Identifier: MIT
// The tokens of one file in flat arrays: what the parsers read.
#pragma once

#include <antlr3.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/prediction_memo.h"

namespace vexltags {

class TokenEdits;

/// Holds the visible tokens of one file, some 14 bytes each, and gives the position of the parser
/// among them. Hidden tokens are not kept; of them only their neighbours know (see
/// `KeepNeighbours`).
///
/// The runtime's own token object is made only where someone asks for a token and not for its type,
/// and lives for the next `kMadeTokens` of them: whoever wants more than that copies text or line.
class TokenTable {
 public:
  static constexpr std::size_t kMadeTokens = 4096;

  explicit TokenTable(pANTLR3_INPUT_STREAM stream);
  TokenTable(const TokenTable&) = delete;
  TokenTable& operator=(const TokenTable&) = delete;

  /// Empties the table for the next file that the same input stream has been given. Memory is kept
  /// for as many tokens as the last file had.
  void Reset();

  // Filling ---------------------------------------------------------------------------------------

  /// Asks to remember for each visible token which type stands directly before and behind it,
  /// hidden tokens included; another 6 bytes each. To be called before the first token.
  void KeepNeighbours() {
    keepsNeighbours = true;
    MakeRoom(room);
  }

  /// Asks to keep the place of each visible token; another 8 bytes each. To be called before the
  /// first token, by whoever then calls `AddPlace` for every token of the file.
  void KeepPlaces() { keepsPlaces = true; }
  bool KeepsPlaces() const { return keepsPlaces; }
  /// Records where the token is that the next call adds: its column, as the lexer counts it, and
  /// that its index among all tokens is the next one.
  void AddPlace(std::int32_t column, bool isVisible) {
    if (isVisible) places.push_back({column, allTokens});
    ++allTokens;
  }

  /// Appends a visible token: the characters from `start` up to `end`, which is behind the last, on
  /// 1-based `line`.
  void Add(unsigned type, const unsigned char* start, const unsigned char* end, unsigned line) {
    if (count == room) MakeRoom(room + room / 2);
    types[count] = static_cast<std::int16_t>(type);
    starts[count] = Offset(start);
    ends[count] = Offset(end);
    lines[count] = line;
    if (keepsNeighbours) {
      gaps += lastHidden != 0;
      gapsBefore[count] = gaps;
      before[count] = lastHidden;
      behind[count] = lastHidden = 0;
    }
    ++count;
  }
  /// The same with a text that replaces the characters.
  void Add(unsigned type, const unsigned char* start, const unsigned char* end, unsigned line,
           std::string_view text);
  /// Tells of a hidden token.
  void AddHidden(unsigned type) {
    lastHidden = static_cast<std::uint8_t>(type);
    if (keepsNeighbours && count > 0 && behind[count - 1] == 0) behind[count - 1] = lastHidden;
  }
  /// Tells of characters that belong to no token, since a lexer rule failed on them.
  /// Stretches that touch are kept as one, so that a gigabyte of zeros costs no memory.
  void AddDropped(const unsigned char* start, const unsigned char* end);
  /// Ends the filling; `line` is the 1-based line of the end of the file.
  void Finish(unsigned line);
  /// Changes the tokens of a finished table in one pass, and moves to the first. Neighbours, texts
  /// and brackets are those of the new tokens. Without changes it costs nothing.
  void Apply(const TokenEdits& edits);

  // Reading ---------------------------------------------------------------------------------------

  std::size_t Count() const { return count; }
  std::size_t Position() const { return position; }
  void Seek(std::size_t index) { position = index; }
  /// Steps over one token; at the end nothing happens.
  void Consume() {
    if (position < count) ++position;
  }
  /// The type of the token `k` ahead, 1 being the next; the runtime's end-of-file type behind the
  /// last.
  ANTLR3_UINT32 LA(ANTLR3_INT32 k) const {
    std::size_t index = position + static_cast<std::size_t>(k) - 1;
    if (k > static_cast<ANTLR3_INT32>(kEndMarks) && index > count) index = count;
    return static_cast<ANTLR3_UINT32>(static_cast<ANTLR3_INT32>(types[index]));
  }
  /// The type of the token `k` behind, 1 being the one just consumed; 0 in front of the first.
  ANTLR3_UINT32 TypeBehind(std::size_t k) const {
    return k <= position ? static_cast<ANTLR3_UINT32>(types[position - k]) : 0;
  }
  /// The token `k` ahead for k > 0 and behind for k < 0, as the runtime's object; see above how
  /// long it lives. Null in front of the first token.
  pANTLR3_COMMON_TOKEN LT(ANTLR3_INT32 k);
  /// The token at `index` as the runtime's object.
  pANTLR3_COMMON_TOKEN Token(std::size_t index);
  /// The next token as `LT` gives it, without asking whether there is one.
  pANTLR3_COMMON_TOKEN Next() { return Make(position); }
  /// A token that is not in the file, with a text that has to outlive it. It stands on the line of
  /// the next token, at the end of the file on that of the last.
  pANTLR3_COMMON_TOKEN MadeUp(unsigned type, const char* text);
  /// The line of the next token, that of the end of the file behind the last.
  int NextLine() const { return static_cast<int>(position < count ? lines[position] : endLine); }

  // Of the token at `index`, which must be below `Count`, without making an object: type, 1-based
  // line, characters or the text that replaces them, and offset of the first character in the
  // input.
  unsigned TypeAt(std::size_t index) const { return static_cast<unsigned>(types[index]); }
  unsigned LineAt(std::size_t index) const { return lines[index]; }
  std::string_view TextAt(std::size_t index);
  std::size_t OffsetAt(std::size_t index) const { return starts[index]; }

  /// What long predictions over these tokens remember.
  PredictionMemo& Predictions() { return predictions; }

  static constexpr std::size_t kNoPartner = static_cast<std::size_t>(-1);
  /// The index of the bracket that closes the next token, which must be of the type `open`,
  /// counting only brackets of these two types; `kNoPartner` when it is never closed. The first
  /// question about a type costs a pass over all tokens.
  std::size_t Partner(unsigned open, unsigned close);

  /// The text of the tokens from index `first` to `last`, hidden ones between them included: the
  /// source, less what no token holds, with replaced texts.
  std::string Text(std::size_t first, std::size_t last) const;

  /// The type of what stands `offset` raw tokens, hidden ones counted, from the next token, as far
  /// as neighbours are kept: -1, the next token itself at 0, and on while the tokens between are
  /// visible and adjacent. End of file outside the file and where it is not known. Takes the same
  /// time for each offset.
  unsigned RawType(int offset) const;

 private:
  static constexpr std::size_t kEndMarks =
      8;  ///< So that looking a few tokens ahead needs no test.

  /// What an error message shows of a token.
  struct Place {
    std::int32_t column;
    std::uint32_t index;  ///< Among all tokens, hidden ones included.
  };
  struct Stretch {
    std::uint32_t start, end;
  };
  struct Replaced {
    std::uint32_t index;
    std::uint32_t length;
    std::size_t start;  ///< In `replacedTexts`.
  };

  struct Bracket {
    std::uint32_t open, close;
  };
  struct Partners {
    unsigned open = 0;
    bool known = false;
    std::vector<Bracket> brackets;  ///< The closed ones, in the order in which they open.
  };

  std::uint32_t Offset(const unsigned char* place) const {
    return static_cast<std::uint32_t>(place - data);
  }
  void FindBrackets(Partners& kind, unsigned close) const;
  void MakeRoom(std::size_t tokens);
  pANTLR3_COMMON_TOKEN Make(std::size_t index);
  const char* ReplacedText(std::size_t index);

  pANTLR3_INPUT_STREAM input;
  const unsigned char* data = nullptr;
  std::size_t count = 0, room = 0;  ///< Tokens that there are, and that there is room for.
  std::unique_ptr<std::int16_t[]>
      types;  ///< Once finished, with kEndMarks marks of the end behind.
  std::unique_ptr<std::uint32_t[]> starts, ends, lines;
  std::unique_ptr<std::uint8_t[]> before, behind;  ///< Hidden neighbours, 0 for none.
  std::unique_ptr<std::uint32_t[]> gapsBefore;  ///< Places in front where something hidden stands.
  std::vector<Stretch> dropped;                 ///< In source order.
  std::vector<Replaced> replaced;               ///< In source order.
  std::string replacedTexts;                    ///< Each with a NUL byte behind it.
  std::size_t nextReplaced = 0;                 ///< Near the last one that was asked for.
  std::size_t position = 0;
  unsigned endLine = 1;
  bool keepsNeighbours = false;
  std::uint8_t lastHidden = 0;  ///< 0 right behind a visible token.
  std::uint32_t gaps = 0;       ///< As `gapsBefore`, of the last token.

  std::vector<Place> places;  ///< One for each visible token, or none at all.
  std::uint32_t allTokens = 0;
  bool keepsPlaces = false;

  std::vector<Partners> partners;
  PredictionMemo predictions;

  std::vector<ANTLR3_COMMON_TOKEN> made;
  std::size_t nextMade = 0;
  ANTLR3_COMMON_TOKEN endOfFile;
};

}  // namespace vexltags
