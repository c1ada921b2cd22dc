// SPDX-License-Identifier: MIT
// Tests of the value records: names, parameters, methods and lists of them.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "engine/token_test_support.h"
#include "parserstate/method_prototype.h"
#include "parserstate/name.h"
#include "parserstate/param.h"

namespace vexltags {
namespace {

TEST(Name, IsEmptyWithoutALineByDefault) {
  const Name name;
  EXPECT_EQ(name.text, "");
  EXPECT_EQ(name.line, -1);
}

TEST(Name, IsAssignedFromATokenWithItsLine) {
  TokenMaker tokens("foo");
  Name name("former", 3);
  name = tokens.Span(0, 3, 12);
  EXPECT_EQ(name.text, "foo");
  EXPECT_EQ(name.line, 12);
}

TEST(Name, IsClearedByANullToken) {
  Name name("former", 3);
  name = static_cast<pANTLR3_COMMON_TOKEN>(nullptr);
  EXPECT_EQ(name.text, "");
  EXPECT_EQ(name.line, -1);
}

TEST(Name, KeepsItsTextForATokenWithoutText) {
  TokenMaker tokens("");
  Name name("former", 3);
  name = tokens.WithoutText(9);
  EXPECT_EQ(name.text, "former");
  EXPECT_EQ(name.line, 9);
  name += tokens.WithoutText(10);
  EXPECT_EQ(name.text, "former");
  EXPECT_EQ(name.line, 10);
}

TEST(Name, CopiesAnEmptyText) {
  TokenMaker tokens("");
  Name name("former", 3);
  name = tokens.Span(0, 0, 9);
  EXPECT_EQ(name.text, "");
  EXPECT_EQ(name.line, 9);
}

TEST(Name, IsAssignedFromAParameterWithoutItsType) {
  Name name("former", 3);
  name = Param("int", "x", 8);
  EXPECT_EQ(name.text, "x");
  EXPECT_EQ(name.line, 8);
}

TEST(Name, HasTheLineOfTheLastTokenOrName) {
  TokenMaker tokens("+");
  Name name("operator", 6);
  name += tokens.Span(0, 1, 7);
  EXPECT_EQ(name.text, "operator+");
  EXPECT_EQ(name.line, 7);
  name += Name("=", 9);
  EXPECT_EQ(name.text, "operator+=");
  EXPECT_EQ(name.line, 9);
  name += Name("", -1);
  EXPECT_EQ(name.text, "operator+=");
  EXPECT_EQ(name.line, -1);
}

TEST(Name, KeepsItsLineForPlainText) {
  Name name("f", 6);
  name += " const";
  name += std::string("!");
  EXPECT_EQ(name.text, "f const!");
  EXPECT_EQ(name.line, 6);
}

TEST(Name, IgnoresAnAppendedNullToken) {
  Name name("f", 6);
  name += static_cast<pANTLR3_COMMON_TOKEN>(nullptr);
  EXPECT_EQ(name.text, "f");
  EXPECT_EQ(name.line, 6);
}

TEST(Param, IsEmptyByDefaultAndFromNull) {
  for (const Param& param : {Param(), Param(nullptr)}) {
    EXPECT_EQ(param.type, "");
    EXPECT_EQ(param.name, "");
    EXPECT_EQ(param.line, -1);
  }
}

TEST(Param, KeepsItsTypeWhenAssignedAName) {
  Param param("int", "x", 4);
  param = Name("y", 5);
  EXPECT_EQ(param.type, "int");
  EXPECT_EQ(param.name, "y");
  EXPECT_EQ(param.line, 5);
}

TEST(Param, IsResetByNull) {
  Param param("int", "x", 4);
  param = 0;  // the form in generated code
  EXPECT_EQ(param.type, "");
  EXPECT_EQ(param.name, "");
  EXPECT_EQ(param.line, -1);
}

TEST(Lists, KeepTheOrderAndAreClearedByNull) {
  ParamList params = nullptr;
  EXPECT_TRUE(params.params.empty());
  params.Add(Param("int", "x", 1));
  params.Add(Param("char", "y", 2));
  ASSERT_EQ(params.params.size(), 2U);
  EXPECT_EQ(params.params[0].name, "x");
  EXPECT_EQ(params.params[1].type, "char");
  params = nullptr;
  EXPECT_TRUE(params.params.empty());

  VectorOfName names = nullptr;
  names.Add(Name("a", 1));
  names.Add(Name("b", 2));
  ASSERT_EQ(names.names.size(), 2U);
  EXPECT_EQ(names.names[1].text, "b");
  EXPECT_EQ(names.names[1].line, 2);
  names = nullptr;
  EXPECT_TRUE(names.names.empty());

  MethodPrototypeList methods = nullptr;
  methods.Add(MethodPrototype(Name("init", 1)));
  ASSERT_EQ(methods.methods.size(), 1U);
  EXPECT_EQ(methods.methods[0].name, "init");
  methods = nullptr;
  EXPECT_TRUE(methods.methods.empty());
}

TEST(MethodPrototype, IsADefinitionWhenMadeFromAName) {
  const MethodPrototype method(Name("setX:", 7));
  EXPECT_EQ(method.name, "setX:");
  EXPECT_EQ(method.line, 7);
  EXPECT_FALSE(method.isClassMethod);
  EXPECT_TRUE(method.isDefinition);
  EXPECT_FALSE(method.isProperty);
  EXPECT_EQ(MethodPrototype().line, -1);
  EXPECT_TRUE(MethodPrototype().isDefinition);
}

TEST(MethodPrototype, KeepsItsFlagsWhenAssigned) {
  MethodPrototype method;
  method.isClassMethod = true;
  method.isDefinition = false;
  method.isProperty = true;
  method = Name("a", 3);
  EXPECT_EQ(method.name, "a");
  EXPECT_EQ(method.line, 3);
  method = Param("int", "b", 4);
  EXPECT_EQ(method.name, "b");
  EXPECT_EQ(method.line, 4);
  EXPECT_TRUE(method.isClassMethod);
  EXPECT_FALSE(method.isDefinition);
  EXPECT_TRUE(method.isProperty);
}

TEST(PropertyAttributeInfo, IsResetByNull) {
  PropertyAttributeInfo info = nullptr;
  EXPECT_EQ(info.line, -1);
  EXPECT_FALSE(info.readonly);
  info.getter = "isOn";
  info.setter = "turnOn:";
  info.readonly = true;
  info.line = 5;
  const PropertyAttributeInfo copy = info;
  EXPECT_EQ(copy.getter, "isOn");
  EXPECT_EQ(copy.line, 5);
  info = nullptr;
  EXPECT_EQ(info.getter, "");
  EXPECT_EQ(info.setter, "");
  EXPECT_FALSE(info.readonly);
  EXPECT_EQ(info.line, -1);
}

}  // namespace
}  // namespace vexltags
