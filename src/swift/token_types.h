// SPDX-License-Identifier: MIT
// The token types of the Swift grammar that operators are told apart by.
#pragma once

namespace vexltags {

/// Numbers as the grammar's vocabulary gives them, which the recogniser checks when it is compiled.
enum SwiftTokenType : unsigned {
  kSwiftSemi = 4,
  kSwiftRCurly = 5,
  kSwiftLParen = 6,
  kSwiftRParen = 7,
  kSwiftLess = 8,
  kSwiftGreater = 9,
  kSwiftComma = 10,
  kSwiftColon = 11,
  kSwiftAssign = 12,
  kSwiftAmpersand = 13,
  kSwiftQuestionMark = 15,
  kSwiftNot = 16,
  kSwiftDot = 17,
  kSwiftLSquare = 19,
  kSwiftRSquare = 20,
  kSwiftLCurly = 31,
  kSwiftDivide = 33,
  kSwiftMinus = 34,
  kSwiftPlus = 35,
  kSwiftStar = 36,
  kSwiftMod = 37,
  kSwiftBitwiseOr = 38,
  kSwiftBitwiseXor = 39,
  kSwiftTilde = 40,
  kSwiftFloatingPointE = 46,
  kSwiftFloatingPointP = 47,
  kSwiftIdentifier = 50,
  kSwiftWhitespace = 55,
  kSwiftSingleLineComment = 62,
  kSwiftCComment = 63,
  kSwiftEndOfFile = 0xFFFFFFFF,
};

}  // namespace vexltags
