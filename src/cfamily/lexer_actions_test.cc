// SPDX-License-Identifier: MIT
// Tests of the lexer's actions on an input stream.
#include "cfamily/lexer_actions.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags {
namespace {

// An input stream that owns its text.
class Input {
 public:
  explicit Input(std::string text) : text_(std::move(text)) {
    static char name[] = "input.c";
    stream_ = antlr3StringStreamNew(reinterpret_cast<pANTLR3_UINT8>(text_.data()), ANTLR3_ENC_8BIT,
                                    static_cast<ANTLR3_UINT32>(text_.size()),
                                    reinterpret_cast<pANTLR3_UINT8>(name));
  }
  ~Input() { stream_->close(stream_); }
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;

  pANTLR3_INPUT_STREAM get() const { return stream_; }
  void Consume(std::size_t count) {
    for (; count > 0; --count) stream_->istream->consume(stream_->istream);
  }

 private:
  std::string text_;
  pANTLR3_INPUT_STREAM stream_;
};

// Expects both to be at the same place, with the same line and column.
void ExpectSamePlace(const Input& a, const Input& b) {
  EXPECT_EQ(CharsAhead(a.get()), CharsAhead(b.get()));
  EXPECT_EQ(a.get()->line, b.get()->line);
  EXPECT_EQ(a.get()->charPositionInLine, b.get()->charPositionInLine);
  EXPECT_EQ(static_cast<char*>(a.get()->currentLine) - static_cast<char*>(a.get()->data),
            static_cast<char*>(b.get()->currentLine) - static_cast<char*>(b.get()->data));
}

TEST(LexerActions, CharsAheadBeginsAtTheNextCharacter) {
  Input input("abc");
  input.Consume(1);
  EXPECT_EQ(CharsAhead(input.get()), "bc");
  input.Consume(2);
  EXPECT_EQ(CharsAhead(input.get()), "");
}

TEST(LexerActions, EatingMovesTheInputLikeConsuming) {
  struct Case {
    std::string text;
    std::size_t start;
    std::size_t eaten;
  };
  const Case cases[] = {{"#if 0\na\n\n#endif\nb\n", 6, 10},
                        {"#if 0\na\n#endif", 6, 8},
                        {"\r#endif\r\nb", 1, 7},
                        {"#endif x", 0, 8}};
  for (const Case& each : cases) {
    Input eaten(each.text);
    eaten.Consume(each.start);
    EXPECT_TRUE(EatIfZeroBody(eaten.get(), nullptr)) << each.text;
    Input also_eaten(each.text);
    also_eaten.Consume(each.start);
    ConditionalMemo memo;
    EXPECT_TRUE(EatToEndif(also_eaten.get(), &memo)) << each.text;
    Input consumed(each.text);
    consumed.Consume(each.start + each.eaten);
    ExpectSamePlace(eaten, consumed);
    ExpectSamePlace(also_eaten, consumed);
  }
}

TEST(LexerActions, EatingWithoutAnEndConsumesTheInput) {
  const std::string text = "#if 0\na\nb\nc";
  Input eaten(text);
  eaten.Consume(6);
  EXPECT_FALSE(EatIfZeroBody(eaten.get(), nullptr));
  Input consumed(text);
  consumed.Consume(text.size());
  ExpectSamePlace(eaten, consumed);
  EXPECT_FALSE(EatToEndif(eaten.get(), nullptr));
  ExpectSamePlace(eaten, consumed);
}

TEST(LexerActions, ElseClosesOnlyAnIfZeroBody) {
  const std::string text = "a\n#else\nb\n#endif\nc\n";
  Input body(text);
  EXPECT_TRUE(EatIfZeroBody(body.get(), nullptr));
  EXPECT_EQ(CharsAhead(body.get()), "b\n#endif\nc\n");
  Input conditional(text);
  EXPECT_TRUE(EatToEndif(conditional.get(), nullptr));
  EXPECT_EQ(CharsAhead(conditional.get()), "c\n");
}

TEST(LexerActions, CCommentAheadRequiresAClosedComment) {
  for (const auto& [text, expected] : {std::pair<const char*, bool>{"/* a\n */", true},
                                       {"/* a", false},
                                       {"// a\n", false},
                                       {"a/**/", false},
                                       {"/", false},
                                       {"", false}}) {
    Input input(text);
    EXPECT_EQ(CCommentAhead(input.get(), nullptr), expected) << text;
    ConditionalMemo memo;
    EXPECT_EQ(CCommentAhead(input.get(), &memo), expected) << text;
    EXPECT_EQ(CCommentAhead(input.get(), &memo), expected) << text;
  }
}

TEST(LexerActions, TextSinceAMark) {
  Input input("ab cd");
  input.Consume(1);
  const ANTLR3_MARKER start = input.get()->istream->index(input.get()->istream);
  input.Consume(3);
  const pANTLR3_STRING text = TextSince(input.get(), start);
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(text->chars), text->len), "b c");
}

TEST(LexerActions, HideFilteredWordComparesTheWholeText) {
  TagsLexerState state("input.c", 0, 0);
  struct Case {
    const char* text;
    std::size_t length;
    ANTLR3_UINT32 channel;
  };
  const char filtered[] = "FOO";
  for (const Case& each :
       {Case{"FOO;", 3, 99}, Case{"FOOL;", 4, 0}, Case{"FO;", 2, 0}, Case{"foo;", 3, 0}}) {
    Input input(each.text);
    const pANTLR3_LEXER lexer = antlr3LexerNewStream(1025, input.get(), nullptr);
    lexer->rec->state->tokenStartCharIndex = input.get()->istream->index(input.get()->istream);
    input.Consume(each.length);
    state.filterTokens.clear();
    HideFilteredWord(lexer, &state);
    HideFilteredWord(lexer, nullptr);
    EXPECT_EQ(lexer->rec->state->channel, 0u) << each.text;
    state.filterTokens.insert(filtered);
    HideFilteredWord(lexer, &state);
    EXPECT_EQ(lexer->rec->state->channel, each.channel) << each.text;
    lexer->free(lexer);
  }
}

}  // namespace
}  // namespace vexltags
