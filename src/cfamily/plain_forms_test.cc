// SPDX-License-Identifier: MIT
// Tests of recognising plain forms of constructs.
#include "cfamily/plain_forms.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cfamily/parser_test_support.h"

namespace vexltags {
namespace {

using Past = ANTLR3_INT32 (PlainForms::*)(ANTLR3_INT32 k) const;
using Types = std::vector<unsigned>;

// The number of tokens of the form at the beginning of `types`; 0 if there is none.
std::size_t LengthOf(Past past, const Types& types) {
  FakeParser parser(types);
  return Takes(&parser, past) ? parser.table.Position() : 0;
}

// Expects that all of `types` but the last one, which follows it, is a form.
void ExpectForm(Past past, const Types& types) {
  EXPECT_EQ(LengthOf(past, types), types.size() - 1) << ::testing::PrintToString(types);
}

void ExpectNone(Past past, const Types& types) {
  EXPECT_EQ(LengthOf(past, types), 0U) << ::testing::PrintToString(types);
}

TEST(PlainForms, NamesHaveScopesAndTemplateArguments) {
  const Past past = &PlainForms::PastName;
  ExpectForm(past, {kMainId, kMainId});
  ExpectForm(past, {kMainId, kMainScope, kMainId, kMainLParen});
  ExpectForm(past, {kMainId, kMainLess, kMainGreater, kMainComma});
  // a<b<c>, 1>::d
  ExpectForm(past, {kMainId, kMainLess, kMainId, kMainLess, kMainId, kMainGreater, kMainComma,
                    kMainNumber, kMainGreater, kMainScope, kMainId, kMainStar});
  ExpectNone(past, {kMainKw_int});
  ExpectNone(past, {kMainId, kMainScope, kMainKw_template});
  ExpectNone(past, {kMainId, kMainLess, kMainId});
  ExpectNone(past, {kMainId, kMainLess, kMainId, kMainSemicolon, kMainGreater});
  ExpectNone(past, {kMainId, kMainLess, kMainLParen, kMainRParen, kMainGreater});
  ExpectNone(past, {kMainId, kMainLess, kMainNumber, kMainLess, kMainNumber, kMainGreater});
}

TEST(PlainForms, NamesOfFunctionsHaveTildes) {
  const Past past = &PlainForms::PastFunctionName;
  ExpectForm(past, {kMainTilde, kMainId, kMainLParen});
  ExpectForm(past, {kMainId, kMainScope, kMainTilde, kMainId, kMainLParen});
  ExpectNone(past, {kMainId, kMainScope, kMainKw_operator});
}

TEST(PlainForms, TypesHaveQualifiersAndPointers) {
  const Past past = &PlainForms::PastType;
  ExpectForm(past, {kMainKw_unsigned, kMainKw_long, kMainId});
  ExpectForm(past, {kMainKw_const, kMainKw_struct, kMainId, kMainStar, kMainKw_const, kMainId});
  ExpectForm(past, {kMainId, kMainScope, kMainId, kMainAnd, kMainId});
  ExpectNone(past, {kMainKw_const, kMainSemicolon});
  ExpectNone(past, {kMainKw_struct, kMainLCurly});
  ExpectNone(past, {kMainKw_typename, kMainId});
  ExpectNone(past, {kMainStar, kMainId});
}

TEST(PlainForms, ParametersHaveTypesNamesAndArrays) {
  const Past past = &PlainForms::PastParams;
  ExpectForm(past, {kMainLParen, kMainRParen, kMainSemicolon});
  ExpectForm(past, {kMainLParen, kMainKw_void, kMainRParen, kMainLCurly});
  ExpectForm(past, {kMainLParen, kMainId, kMainId, kMainLSquare, kMainNumber, kMainRSquare,
                    kMainComma, kMainKw_char, kMainStar, kMainRParen, kMainKw_const});
  ExpectNone(past, {kMainLParen, kMainKw_int, kMainComma, kMainEllipsis, kMainRParen});
  ExpectNone(past, {kMainLParen, kMainKw_int, kMainId, kMainAssign, kMainNumber, kMainRParen});
  ExpectNone(past, {kMainLParen, kMainId, kMainLSquare, kMainLSquare, kMainRSquare, kMainRSquare,
                    kMainRParen});
  ExpectNone(past, {kMainLParen, kMainId, kMainLSquare});
  ExpectNone(past, {kMainLParen, kMainKw_int});
  ExpectNone(past, {kMainLParen, kMainKw_int, kMainComma, kMainRParen});
}

TEST(PlainForms, AnEmptyTemplateHeadHasTheTextOfANamelessParameter) {
  std::string text = "old";
  FakeParser parser({kMainKw_template, kMainLess, kMainGreater, kMainId});
  ASSERT_TRUE(TakesEmptyTemplateHead(&parser, text));
  EXPECT_EQ(text, "anon_value");
  EXPECT_EQ(parser.table.Position(), 3U);
  FakeParser other({kMainKw_template, kMainLess, kMainId, kMainGreater});
  text = "old";
  EXPECT_FALSE(TakesEmptyTemplateHead(&other, text));
  EXPECT_EQ(text, "old");
}

TEST(PlainForms, TemplateHeadsAreEmpty) {
  const Past past = &PlainForms::PastTemplateHead;
  ExpectForm(past, {kMainKw_template, kMainLess, kMainGreater, kMainId});
  ExpectNone(past, {kMainKw_template, kMainLess, kMainGreater, kMainKw_requires});
  ExpectNone(past, {kMainKw_template, kMainLess, kMainKw_class, kMainId, kMainGreater, kMainId});
}

TEST(PlainForms, FunctionsEndBeforeSemicolonOrBody) {
  const Past past = &PlainForms::PastFunction;
  ExpectForm(past, {kMainKw_int, kMainId, kMainLParen, kMainRParen, kMainSemicolon});
  ExpectForm(past, {kMainKw_friend, kMainKw_template, kMainLess, kMainGreater, kMainKw_static,
                    kMainId, kMainStar, kMainId, kMainScope, kMainId, kMainLParen, kMainRParen,
                    kMainKw_const, kMainLCurly});
  ExpectForm(past,
             {kMainKw_virtual, kMainTilde, kMainId, kMainLParen, kMainRParen, kMainSemicolon});
  ExpectForm(past, {kMainKw_explicit, kMainId, kMainLParen, kMainId, kMainRParen, kMainLCurly});
  // Only functions with a result are static, only constructors explicit.
  ExpectNone(past, {kMainKw_static, kMainId, kMainLParen, kMainRParen, kMainSemicolon});
  ExpectNone(past,
             {kMainKw_explicit, kMainKw_int, kMainId, kMainLParen, kMainRParen, kMainSemicolon});
  ExpectNone(past, {kMainId, kMainLParen, kMainRParen, kMainKw_const, kMainSemicolon});
  ExpectNone(past, {kMainKw_int, kMainLParen, kMainRParen, kMainSemicolon});
  ExpectNone(past, {kMainKw_int, kMainId, kMainSemicolon});
  ExpectNone(past, {kMainKw_int, kMainKw_operator, kMainPlus, kMainLParen, kMainRParen});
  ExpectNone(past, {kMainKw_int, kMainId, kMainLParen, kMainRParen, kMainAssign, kMainNumber});
  ExpectNone(past, {kMainId, kMainLParen, kMainRParen, kMainColon, kMainId, kMainLParen});
}

TEST(PlainForms, DeclarationsHaveNamesArraysAndWidths) {
  const Past past = &PlainForms::PastDeclaration;
  ExpectForm(past, {kMainKw_int, kMainId, kMainSemicolon, kMainId});
  ExpectForm(past, {kMainKw_static, kMainKw_const, kMainKw_char, kMainStar, kMainId, kMainLSquare,
                    kMainRSquare, kMainLSquare, kMainId, kMainPlus, kMainId, kMainRSquare,
                    kMainSemicolon, kMainId});
  ExpectForm(past, {kMainId, kMainId, kMainComma, kMainStar, kMainStar, kMainId, kMainSemicolon,
                    kMainRCurly});
  ExpectForm(past, {kMainKw_unsigned, kMainId, kMainColon, kMainNumber, kMainComma, kMainId,
                    kMainSemicolon, kMainId});
  ExpectNone(past, {kMainId, kMainSemicolon});
  ExpectNone(past, {kMainKw_int, kMainId, kMainAssign, kMainNumber, kMainSemicolon});
  ExpectNone(past, {kMainKw_int, kMainColon, kMainNumber, kMainSemicolon});
  ExpectNone(past, {kMainKw_int, kMainId, kMainLParen, kMainRParen, kMainSemicolon});
  ExpectNone(past, {kMainKw_extern, kMainStringLiteral, kMainKw_int, kMainId, kMainSemicolon});
  ExpectNone(past, {kMainId, kMainId, kMainComma});
}

TEST(PlainForms, DeclaratorsEndBeforeASemicolon) {
  const Past past = &PlainForms::PastDeclarators;
  ExpectForm(past, {kMainId, kMainComma, kMainStar, kMainId, kMainSemicolon});
  ExpectNone(past, {kMainId, kMainAssign, kMainNumber, kMainSemicolon});
  ExpectNone(past, {kMainSemicolon});
}

TEST(PlainForms, AreShort) {
  Types types;
  while (types.size() < 60) types.insert(types.end(), {kMainId, kMainScope});
  types.insert(types.end(), {kMainId, kMainStar, kMainSemicolon});
  ExpectForm(&PlainForms::PastType, types);
  // One token more: another `*` may follow the last one that is looked at.
  types.insert(types.end() - 1, kMainStar);
  ExpectNone(&PlainForms::PastType, types);
}

TEST(PassesAs, TakesFormsInSpeculativeParsesOnly) {
  FakeParser parser({kMainId, kMainSemicolon});
  EXPECT_TRUE(PassesAs(&parser, &PlainForms::PastName));
  EXPECT_EQ(parser.table.Position(), 1U);
  EXPECT_EQ(parser.state.errorRecovery, static_cast<ANTLR3_BOOLEAN>(ANTLR3_FALSE));
  EXPECT_FALSE(PassesAs(&parser, &PlainForms::PastName));
  EXPECT_EQ(parser.table.Position(), 1U);
  FakeParser acting({kMainId, kMainSemicolon});
  acting.state.backtracking = 0;
  EXPECT_FALSE(PassesAs(&acting, &PlainForms::PastName));
  EXPECT_EQ(acting.state.errorRecovery, static_cast<ANTLR3_BOOLEAN>(ANTLR3_TRUE));
}

TEST(PassesAsFunction, TakesTheSemicolonOrTheBody) {
  FakeParser declared({kMainKw_int, kMainId, kMainLParen, kMainRParen, kMainSemicolon, kMainId});
  EXPECT_TRUE(PassesAsFunction(&declared));
  EXPECT_EQ(declared.table.Position(), 5U);
  FakeParser defined({kMainId, kMainLParen, kMainRParen, kMainLCurly, kMainLCurly, kMainRCurly,
                      kMainRCurly, kMainId});
  EXPECT_TRUE(PassesAsFunction(&defined));
  EXPECT_EQ(defined.table.Position(), 7U);
  FakeParser unclosed({kMainId, kMainLParen, kMainRParen, kMainLCurly, kMainLCurly, kMainRCurly});
  EXPECT_FALSE(PassesAsFunction(&unclosed));
  EXPECT_EQ(unclosed.table.Position(), 0U);
}

TEST(TakesWord, GivesTheNameOutsideSpeculativeParses) {
  FakeParser parser({kMainId, kMainSemicolon});
  parser.state.backtracking = 0;
  Name name;
  EXPECT_TRUE(TakesWord(&parser, name));
  EXPECT_EQ(name.line, 1);
  EXPECT_EQ(parser.table.Position(), 1U);
  EXPECT_FALSE(TakesWord(&parser, name));
  for (const unsigned next : {unsigned{kMainScope}, unsigned{kMainLess}}) {
    FakeParser longer({kMainId, next});
    EXPECT_FALSE(TakesWord(&longer, name));
    EXPECT_EQ(longer.table.Position(), 0U);
  }
}

TEST(HasNoQualifier, IfNoScopeFollowsTheName) {
  FakeParser parser({kMainId, kMainLParen});
  EXPECT_TRUE(HasNoQualifier(&parser));
  EXPECT_EQ(parser.table.Position(), 0U);
  for (const unsigned next : {unsigned{kMainScope}, unsigned{kMainLess}}) {
    FakeParser longer({kMainId, next});
    EXPECT_FALSE(HasNoQualifier(&longer));
  }
  FakeParser other({kMainKw_operator, kMainPlus});
  EXPECT_FALSE(HasNoQualifier(&other));
}

}  // namespace
}  // namespace vexltags
