// SPDX-License-Identifier: MIT
// Tests of operator classification on windows of token types.
#include "swift/operators.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace vexltags {
namespace {

constexpr unsigned kOther = 22;  // A string literal: neither operator nor white space.

/// Returns the token type of a character of a test: `a` is a name, `e` and `p` are the single
/// letters,
/// `"` is some other token, a blank is white space, `c` and `C` are the two forms of comment, `A`
/// is a hidden attribute.
unsigned TypeOf(char c) {
  switch (c) {
    case ';':
      return kSwiftSemi;
    case '}':
      return kSwiftRCurly;
    case '(':
      return kSwiftLParen;
    case ')':
      return kSwiftRParen;
    case '<':
      return kSwiftLess;
    case '>':
      return kSwiftGreater;
    case ',':
      return kSwiftComma;
    case ':':
      return kSwiftColon;
    case '=':
      return kSwiftAssign;
    case '&':
      return kSwiftAmpersand;
    case '?':
      return kSwiftQuestionMark;
    case '!':
      return kSwiftNot;
    case '.':
      return kSwiftDot;
    case '[':
      return kSwiftLSquare;
    case ']':
      return kSwiftRSquare;
    case '{':
      return kSwiftLCurly;
    case '/':
      return kSwiftDivide;
    case '-':
      return kSwiftMinus;
    case '+':
      return kSwiftPlus;
    case '*':
      return kSwiftStar;
    case '%':
      return kSwiftMod;
    case '|':
      return kSwiftBitwiseOr;
    case '^':
      return kSwiftBitwiseXor;
    case '~':
      return kSwiftTilde;
    case 'e':
      return kSwiftFloatingPointE;
    case 'p':
      return kSwiftFloatingPointP;
    case 'a':
      return kSwiftIdentifier;
    case ' ':
      return kSwiftWhitespace;
    case 'c':
      return kSwiftSingleLineComment;
    case 'C':
      return kSwiftCComment;
    case 'A':
      return 24;
    default:
      return kOther;
  }
}

/// A window on the tokens of a source in which `@` precedes the current token.
class Tokens {
 public:
  explicit Tokens(std::string_view source) {
    for (const char c : source) {
      if (c == '@') {
        current_ = types_.size();
      } else {
        types_.push_back(TypeOf(c));
      }
    }
  }
  TokenWindow Window() const { return {this, TypeAt}; }
  /// A window at the token with this index, which remembers runs.
  TokenWindow Window(std::size_t index, OperatorRuns& runs) {
    current_ = index;
    return {this, TypeAt, index, runs};
  }

 private:
  static unsigned TypeAt(const void* tokens, int offset) {
    const auto& self = *static_cast<const Tokens*>(tokens);
    const std::size_t index = self.current_ + static_cast<std::size_t>(offset);
    return index < self.types_.size() ? self.types_[index] : static_cast<unsigned>(kSwiftEndOfFile);
  }

  std::vector<unsigned> types_;
  std::size_t current_ = 0;
};

std::string MembersOf(bool (*set)(unsigned)) {
  std::string members;
  for (const char c : std::string(";}()<>,:=&?!.[]{/-+*%|^~epa cCA\"")) {
    if (set(TypeOf(c))) members += c;
  }
  return members;
}

TEST(OperatorSets, HoldExactlyTheirMembers) {
  EXPECT_EQ(MembersOf(isOperatorHead), "<>=&?!/-+*%|^~");
  EXPECT_EQ(MembersOf(isOperatorToken), "<>=&?!/-+*%|^~");
  EXPECT_EQ(MembersOf(isLeftOperatorWS), ";(,:[{ ");
  EXPECT_EQ(MembersOf(isRightOperatorWS), ";}),:] cC");
}

TEST(OperatorSets, HoldNoKeywordAndNoEndOfFile) {
  for (const auto set : {isOperatorHead, isOperatorToken, isLeftOperatorWS, isRightOperatorWS}) {
    for (unsigned type = 68; type < 149; ++type) EXPECT_FALSE(set(type)) << type;
    EXPECT_FALSE(set(kSwiftEndOfFile));
    EXPECT_FALSE(set(0));
  }
}

TEST(GetLastOpTokenIndex, MeasuresTheGluedRun) {
  const struct {
    std::string_view source;
    int expected;
  } cases[] = {
      {"a@+a", 0}, {"a @?? a", 1}, {"a @!== a", 2}, {"a @+ +a", 0},  {"@a", -1},   {"@ +", -1},
      {"@", -1},   {"@+", 0},      {"a@.a", 0},     {"@...", 2},     {"@.+.a", 2}, {"@+.a", 0},
      {"@+-.", 1}, {"@?.a", 0},    {"@+c+", 0},     {"a = @=-a", 1}, {"@(", -1},   {"@==<a", 2},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(getLastOpTokenIndex(Tokens(one.source).Window()), one.expected) << one.source;
  }
}

TEST(GetLastOpTokenIndex, IsTheSameWithRememberedRuns) {
  for (const std::string source : {"a+-.*.%a", "..+.a==", "a ?! !? a", "+a+a+", ".a.+a+.", "+"}) {
    // Every pair of consecutive calls: what is remembered must not change a result.
    for (std::size_t first = 0; first < source.size(); ++first) {
      for (std::size_t second = 0; second < source.size(); ++second) {
        OperatorRuns runs;
        Tokens tokens(source);
        getLastOpTokenIndex(tokens.Window(first, runs));
        const int remembered = getLastOpTokenIndex(tokens.Window(second, runs));
        EXPECT_EQ(remembered, getLastOpTokenIndex(tokens.Window())) << source << first << second;
      }
    }
  }
}

TEST(OperatorRuns, KnowEachTokenOfTheLastRunOfAKind) {
  OperatorRuns runs;
  EXPECT_EQ(runs.Last(0, false), -1);
  runs.Keep(3, false, 2);
  runs.Keep(10, true, 0);
  EXPECT_EQ(runs.Last(2, false), -1);
  EXPECT_EQ(runs.Last(3, false), 2);
  EXPECT_EQ(runs.Last(5, false), 0);
  EXPECT_EQ(runs.Last(6, false), -1);
  EXPECT_EQ(runs.Last(4, true), -1);
  EXPECT_EQ(runs.Last(10, true), 0);
}

struct Classes {
  std::string_view source;
  bool binary, prefix, postfix;
};

void Expect(const Classes& one) {
  const Tokens tokens(one.source);
  EXPECT_EQ(isBinaryOp(tokens.Window()), one.binary) << one.source;
  EXPECT_EQ(isPrefixOp(tokens.Window()), one.prefix) << one.source;
  EXPECT_EQ(isPostfixOp(tokens.Window()), one.postfix) << one.source;
}

TEST(OperatorClasses, DependOnWhiteSpaceOnBothSides) {
  Expect({"a@+a", true, false, false});
  Expect({"a @+ a", true, false, false});
  Expect({"a @+a", false, true, false});
  Expect({"a@+ a", false, false, true});
}

TEST(OperatorClasses, MeasureWholeRuns) {
  Expect({"a @?? a", true, false, false});
  Expect({"a @!== a", true, false, false});
  Expect({"a@=-\"", true, false, false});
  Expect({"a @=-\"", false, true, false});
  // The run ends at the blank, which is white space on its right.
  Expect({"a @+ +a", true, false, false});
}

TEST(OperatorClasses, TreatBracketsAndSeparatorsAsWhiteSpaceOnOneSide) {
  Expect({"(@-a", false, true, false});
  Expect({",@-a", false, true, false});
  Expect({"[@-a", false, true, false});
  Expect({"{@-a", false, true, false});
  Expect({":@-a", false, true, false});
  Expect({";@-a", false, true, false});
  Expect({")@-a", true, false, false});
  Expect({"]@-a", true, false, false});
  Expect({"}@-a", true, false, false});
  Expect({"a@!)", false, false, true});
  Expect({"a@!]", false, false, true});
  Expect({"a@!}", false, false, true});
  Expect({"a@!,", false, false, true});
  Expect({"a@!;", false, false, true});
  Expect({"a@!:", false, false, true});
  Expect({"a@+(", true, false, false});
  Expect({"a@+[", true, false, false});
}

TEST(OperatorClasses, TreatACommentAsWhiteSpaceOnTheRightOnly) {
  Expect({"a@+Ca", false, false, true});
  Expect({"a@+c", false, false, true});
  Expect({"aC@+a", true, false, false});
  Expect({"aC@+ a", false, false, true});
}

TEST(OperatorClasses, TreatNoOtherHiddenTokenAsWhiteSpace) {
  Expect({"aA@+a", true, false, false});
  Expect({"a @+A", false, true, false});
}

TEST(OperatorClasses, DoNotTreatTheEndsOfTheFileAsWhiteSpace) {
  Expect({"@+a", true, false, false});
  Expect({"@+ a", false, false, true});
  Expect({"a@+", true, false, false});
  Expect({"a @+", false, true, false});
}

TEST(OperatorClasses, AreFalseForOtherTokens) {
  Expect({"@a", false, false, false});
  Expect({" @(a", false, false, false});
  Expect({"@", false, false, false});
}

TEST(OperatorClasses, TreatASingleMarkBeforeADotAsSuffix) {
  Expect({"a@?.a", false, false, true});
  Expect({"a@!.a", false, false, true});
  Expect({")@?.a", false, false, true});
  // White space on the left, another operator, or more than one.
  Expect({"a @?.a", false, true, false});
  Expect({"a@+.a", true, false, true});
  Expect({"a@??.a", true, false, true});
  // Without a dot, a mark between two names is binary.
  Expect({"a@?a", true, false, false});
  Expect({"a @? a", true, false, false});
}

TEST(OperatorClasses, TreatARunThatBeginsWithADotLikeOthers) {
  Expect({"a@.a", true, false, false});
  Expect({"a @.a", false, true, false});
  Expect({"a @.+ a", true, false, false});
  Expect({"a@.. ", false, false, true});
}

TEST(OperNotGenericClauseOpener, IsFalseForALessDirectlyBeforeAName) {
  EXPECT_FALSE(operNotGenericClauseOpener(Tokens("@<a").Window()));
  EXPECT_FALSE(operNotGenericClauseOpener(Tokens("@<e").Window()));
  EXPECT_FALSE(operNotGenericClauseOpener(Tokens("@<p").Window()));
  EXPECT_FALSE(operNotGenericClauseOpener(Tokens("a @<a").Window()));
}

TEST(OperNotGenericClauseOpener, IsOtherwiseTrue) {
  for (const std::string_view source :
       {"@< a", "@<(", "@<\"", "@<<a", "@<[", "@>a", "@=a", "@a", "@<", "@", "@<Ca"}) {
    EXPECT_TRUE(operNotGenericClauseOpener(Tokens(source).Window())) << source;
  }
}

}  // namespace
}  // namespace vexltags
