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

/// Holds the visible tokens of one file, about 14 bytes each, and the position of the parser.
/// Hidden tokens are not kept, except for their types next to visible ones (see `KeepNeighbours`).
///
/// A token object of the runtime is made only if more than the type of a token is needed. It is
/// valid until another `kMadeTokens` of them have been made; code that needs it longer must copy
/// its text or line.
class TokenTable {
 public:
  static constexpr std::size_t kMadeTokens = 4096;

  explicit TokenTable(pANTLR3_INPUT_STREAM stream);
  TokenTable(const TokenTable&) = delete;
  TokenTable& operator=(const TokenTable&) = delete;

  /// Empties the table for the next file of the same input stream. Keeps the memory for as many
  /// tokens as the last file had.
  void Reset();

  // Filling ---------------------------------------------------------------------------------------

  /// Keeps the types of the hidden tokens directly before and after each visible token, in another
  /// 6 bytes each. To be called before the first token.
  void KeepNeighbours() {
    keepsNeighbours = true;
    MakeRoom(room);
  }

  /// Keeps the place of each visible token, in another 8 bytes each. To be called before the first
  /// token by code that then calls `AddPlace` for every token of the file.
  void KeepPlaces() { keepsPlaces = true; }
  bool KeepsPlaces() const { return keepsPlaces; }
  /// Records the place of the token that the next call adds: its column, as the lexer counts it,
  /// and the next index among all tokens.
  void AddPlace(std::int32_t column, bool isVisible) {
    if (isVisible) places.push_back({column, allTokens});
    ++allTokens;
  }

  /// Appends a visible token: the characters in [`start`, `end`), on 1-based `line`.
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
  /// Records a hidden token.
  void AddHidden(unsigned type) {
    lastHidden = static_cast<std::uint8_t>(type);
    if (keepsNeighbours && count > 0 && behind[count - 1] == 0) behind[count - 1] = lastHidden;
  }
  /// Records characters that belong to no token, because a lexer rule failed on them. Adjacent
  /// stretches are kept as one, so that a gigabyte of zeros costs no memory.
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
  /// Advances by one token, except at the end.
  void Consume() {
    if (position < count) ++position;
  }
  /// Returns the type of the `k`th token ahead, 1 being the next; the runtime's end-of-file type
  /// after the last.
  ANTLR3_UINT32 LA(ANTLR3_INT32 k) const {
    std::size_t index = position + static_cast<std::size_t>(k) - 1;
    if (k > static_cast<ANTLR3_INT32>(kEndMarks) && index > count) index = count;
    return static_cast<ANTLR3_UINT32>(static_cast<ANTLR3_INT32>(types[index]));
  }
  /// Returns the type of the `k`th token back, 1 being the last consumed; 0 before the first.
  ANTLR3_UINT32 TypeBehind(std::size_t k) const {
    return k <= position ? static_cast<ANTLR3_UINT32>(types[position - k]) : 0;
  }
  /// Returns the `k`th token ahead for k > 0, or back for k < 0, as the runtime's object, which is
  /// valid as described above. Null before the first token.
  pANTLR3_COMMON_TOKEN LT(ANTLR3_INT32 k);
  /// Returns the token at `index` as the runtime's object.
  pANTLR3_COMMON_TOKEN Token(std::size_t index);
  /// Returns the next token as `LT` does. There must be one.
  pANTLR3_COMMON_TOKEN Next() { return Make(position); }
  /// Makes a token that is not in the file, with a text that must outlive it. Its line is that of
  /// the next token, or of the last token at the end of the file.
  pANTLR3_COMMON_TOKEN MadeUp(unsigned type, const char* text);
  /// Returns the line of the next token, or of the end of the file after the last.
  int NextLine() const { return static_cast<int>(position < count ? lines[position] : endLine); }

  // Of the token at `index`, which must be below `Count`, without making an object: type, 1-based
  // line, characters in the source, those or the text that replaces them, and offset of the first
  // character in the input.
  unsigned TypeAt(std::size_t index) const { return static_cast<unsigned>(types[index]); }
  unsigned LineAt(std::size_t index) const { return lines[index]; }
  std::string_view SourceAt(std::size_t index) const {
    return {reinterpret_cast<const char*>(data + starts[index]), ends[index] - starts[index]};
  }
  std::string_view TextAt(std::size_t index);
  std::size_t OffsetAt(std::size_t index) const { return starts[index]; }

  /// The memory of long predictions over these tokens.
  PredictionMemo& Predictions() { return predictions; }

  static constexpr std::size_t kNoPartner = static_cast<std::size_t>(-1);
  /// Returns the index of the bracket that closes the next token, which must be of type `open`,
  /// counting only brackets of these two types; `kNoPartner` if it is never closed. The first call
  /// for a type takes a pass over all tokens.
  std::size_t Partner(unsigned open, unsigned close);

  /// Returns the text of the tokens from index `first` to `last`, including hidden ones in between:
  /// the source without dropped characters, with replaced texts.
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
  std::size_t count = 0, room = 0;        ///< Tokens that there are, and that there is room for.
  std::unique_ptr<std::int16_t[]> types;  ///< Once finished, followed by kEndMarks end marks.
  std::unique_ptr<std::uint32_t[]> starts, ends, lines;
  std::unique_ptr<std::uint8_t[]> before, behind;  ///< Hidden neighbours, 0 for none.
  std::unique_ptr<std::uint32_t[]> gapsBefore;     ///< Number of hidden runs before the token.
  std::vector<Stretch> dropped;                    ///< In source order.
  std::vector<Replaced> replaced;                  ///< In source order.
  std::string replacedTexts;                       ///< Each followed by a NUL byte.
  std::size_t nextReplaced = 0;                    ///< Near the last one that was asked for.
  std::size_t position = 0;
  unsigned endLine = 1;
  bool keepsNeighbours = false;
  std::uint8_t lastHidden = 0;  ///< 0 directly after a visible token.
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
