// SPDX-License-Identifier: MIT
// Classifies a run of operator tokens by the types of its neighbours.
#include "swift/operators.h"

#include <cstdint>

namespace vexltags {
namespace {

/// A set of token types below 64.
template <class... Types>
constexpr std::uint64_t SetOf(Types... types) {
  return ((std::uint64_t{1} << types) | ...);
}

constexpr bool Has(std::uint64_t set, unsigned type) {
  return type < 64 && ((set >> type) & 1) != 0;
}

constexpr std::uint64_t kOperatorHeads =
    SetOf(kSwiftLess, kSwiftGreater, kSwiftAssign, kSwiftAmpersand, kSwiftQuestionMark, kSwiftNot,
          kSwiftDivide, kSwiftMinus, kSwiftPlus, kSwiftStar, kSwiftMod, kSwiftBitwiseOr,
          kSwiftBitwiseXor, kSwiftTilde);
constexpr std::uint64_t kLeftWhitespace = SetOf(kSwiftSemi, kSwiftLParen, kSwiftComma, kSwiftColon,
                                                kSwiftLSquare, kSwiftLCurly, kSwiftWhitespace);
constexpr std::uint64_t kRightWhitespace =
    SetOf(kSwiftSemi, kSwiftRCurly, kSwiftRParen, kSwiftComma, kSwiftColon, kSwiftRSquare,
          kSwiftWhitespace, kSwiftSingleLineComment, kSwiftCComment);

/// The token types on both sides of the run that begins at the current token.
struct Neighbours {
  bool run;  ///< Whether there is a run; the rest is valid only if there is.
  int last;
  unsigned left;
  unsigned right;
};

Neighbours NeighboursOf(const TokenWindow& window) {
  const int last = getLastOpTokenIndex(window);
  if (last == -1) return {false, last, kSwiftEndOfFile, kSwiftEndOfFile};
  return {true, last, window.Type(-1), window.Type(last + 1)};
}

}  // namespace

bool isOperatorHead(unsigned type) { return Has(kOperatorHeads, type); }

bool isOperatorToken(unsigned type) { return isOperatorHead(type); }

bool isLeftOperatorWS(unsigned type) { return Has(kLeftWhitespace, type); }

bool isRightOperatorWS(unsigned type) { return Has(kRightWhitespace, type); }

int getLastOpTokenIndex(const TokenWindow& window) {
  const unsigned first = window.Type(0);
  const bool hasDots = first == kSwiftDot;
  if (!hasDots && !isOperatorHead(first)) return -1;
  const int known = window.KnownLast(hasDots);
  if (known != -1) return known;
  int last = 0;
  for (;; ++last) {
    const unsigned next = window.Type(last + 1);
    if (!isOperatorToken(next) && !(hasDots && next == kSwiftDot)) break;
  }
  window.KeepLast(hasDots, last);
  return last;
}

bool isBinaryOp(const TokenWindow& window) {
  const Neighbours sides = NeighboursOf(window);
  if (!sides.run) return false;
  const bool leftSpace = isLeftOperatorWS(sides.left);
  const unsigned type = window.Type(0);
  const bool single = sides.last == 0 && (type == kSwiftQuestionMark || type == kSwiftNot);
  if (single && !leftSpace && sides.right == kSwiftDot) return false;
  return leftSpace == isRightOperatorWS(sides.right);
}

bool isPrefixOp(const TokenWindow& window) {
  const Neighbours sides = NeighboursOf(window);
  return sides.run && isLeftOperatorWS(sides.left) && !isRightOperatorWS(sides.right);
}

bool isPostfixOp(const TokenWindow& window) {
  const Neighbours sides = NeighboursOf(window);
  return sides.run && !isLeftOperatorWS(sides.left) &&
         (isRightOperatorWS(sides.right) || sides.right == kSwiftDot);
}

bool operNotGenericClauseOpener(const TokenWindow& window) {
  if (window.Type(0) != kSwiftLess) return true;
  const unsigned next = window.Type(1);
  return next != kSwiftIdentifier && next != kSwiftFloatingPointE && next != kSwiftFloatingPointP;
}

}  // namespace vexltags
