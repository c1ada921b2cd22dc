// SPDX-License-Identifier: MIT
// Tests of Objective-C tags: method letters, accessors, selectors and scopes.
#include <string>

#include "cfamily/tag_builder_fixture.h"

namespace vexltags {
namespace {

class ObjcTagsTest : public TagBuilderTest {
 protected:
  static MethodPrototype Method(const std::string& name, int line) {
    return MethodPrototype(Name(name, line));
  }
  static PropertyAttributeInfo Attributes(const std::string& getter, const std::string& setter,
                                          bool readonly) {
    PropertyAttributeInfo attributes;
    attributes.getter = getter;
    attributes.setter = setter;
    attributes.readonly = readonly;
    return attributes;
  }
  static const Name kNoCategory;
};

const Name ObjcTagsTest::kNoCategory;

TEST_F(ObjcTagsTest, AMethodHasOneOfSixLetters) {
  Open("Foo", kInterfaceKind);
  const struct {
    bool isProperty, isDefinition, isClassMethod;
    char letter;
  } cases[] = {
      {false, false, false, 'i'}, {false, false, true, 'I'}, {false, true, false, 'o'},
      {false, true, true, 'O'},   {true, false, false, 'r'}, {true, false, true, 'r'},
      {true, true, false, 'R'},   {true, true, true, 'R'},
  };
  for (const auto& c : cases) {
    MethodPrototype method = Method("run", 7);
    method.isProperty = c.isProperty;
    method.isDefinition = c.isDefinition;
    method.isClassMethod = c.isClassMethod;
    builder.DumpMethod(method);
    EXPECT_EQ(Tags(), std::string("run\ta.h\t7;\"\t") + c.letter + "\tinterface:Foo\n");
  }
}

TEST_F(ObjcTagsTest, TheFieldNamesTheScope) {
  const std::pair<long, const char*> cases[] = {
      {kInterfaceKind, "interface"},
      {kProtocolKind, "protocol"},
      {kImplementationKind, "implementation"},
  };
  for (const auto& [kind, word] : cases) {
    Open("Foo< A,\tB>", kind);
    builder.DumpMethod(Method("log:,\n...", 7));
    EXPECT_EQ(Tags(), "log:, ...\ta.h\t7;\"\to\t" + std::string(word) + ":Foo< A, B>\n");
    builder.PopClass(8);
  }
}

TEST_F(ObjcTagsTest, MethodsHaveNoReadableForm) {
  Open("Foo", kInterfaceKind);
  EXPECT_EQ(Readable([&] { builder.DumpMethod(Method("run", 7)); }), "implement ParserState:198\n");
}

TEST_F(ObjcTagsTest, AccessorsOfAProperty) {
  const struct {
    const char *property, *getter, *setter;
    bool readonly;
    const char *first, *second;  // names of the accessors; null for no second one
  } cases[] = {
      {"count", "", "", false, "count", "setCount:"},
      {"count", "", "", true, "count", nullptr},
      {"on", "isOn", "", false, "isOn", "setOn:"},
      {"x", "", "store", false, "x", "store"},
      {"x", "fetch", "store:", false, "fetch", "store:"},
      {"x", "fetch", "store", true, "fetch", nullptr},
      {"URL", "", "", false, "URL", "setURL:"},
      {"_x", "", "", false, "_x", "set_x:"},
      {"", "", "", false, "", "set:"},
  };
  for (const bool isDefinition : {false, true}) {
    for (const auto& c : cases) {
      MethodPrototypeList list;
      MethodPrototype proto = Method(c.property, 9);
      proto.isClassMethod = isDefinition;
      PopulatePropertyMethodPrototypeList(proto, Attributes(c.getter, c.setter, c.readonly),
                                          isDefinition, list);
      ASSERT_EQ(list.methods.size(), c.second == nullptr ? 1U : 2U) << c.property;
      EXPECT_EQ(list.methods[0].name, c.first);
      if (c.second != nullptr) {
        EXPECT_EQ(list.methods[1].name, c.second);
      }
      for (const MethodPrototype& accessor : list.methods) {
        EXPECT_TRUE(accessor.isProperty);
        EXPECT_EQ(accessor.isDefinition, isDefinition);
        EXPECT_EQ(accessor.isClassMethod, isDefinition);
        EXPECT_EQ(accessor.line, 9);
      }
    }
  }
}

TEST_F(ObjcTagsTest, AccessorsAreAppended) {
  MethodPrototypeList list;
  AddSynthesized(list, Name("a", 1));
  AddSynthesized(list, Name("b", 2));
  ASSERT_EQ(list.methods.size(), 4U);
  EXPECT_EQ(list.methods[3].name, "setB:");
  Open("Foo", kImplementationKind);
  EndObjcMethod(builder, list);
  EXPECT_EQ(Tags(),
            "a\ta.h\t1;\"\tR\timplementation:Foo\n"
            "setA:\ta.h\t1;\"\tR\timplementation:Foo\n"
            "b\ta.h\t2;\"\tR\timplementation:Foo\n"
            "setB:\ta.h\t2;\"\tR\timplementation:Foo\n");
}

TEST_F(ObjcTagsTest, LaterAttributesAreMerged) {
  PropertyAttributeInfo all = Attributes("g", "s", false);
  MergePropertyAttribute(all, PropertyAttributeInfo());
  EXPECT_EQ(all.getter, "g");
  EXPECT_EQ(all.setter, "s");
  EXPECT_FALSE(all.readonly);
  MergePropertyAttribute(all, Attributes("", "", true));
  MergePropertyAttribute(all, Attributes("g2", "", false));
  MergePropertyAttribute(all, Attributes("", "s2", false));
  EXPECT_EQ(all.getter, "g2");
  EXPECT_EQ(all.setter, "s2");
  EXPECT_TRUE(all.readonly);
}

TEST_F(ObjcTagsTest, ASelectorWithoutAKeywordHasNoLine) {
  Open("Foo", kInterfaceKind);
  builder.DumpMethod(Method(":", -1));
  EXPECT_EQ(Tags(), ":\ta.h\t-1;\"\to\tinterface:Foo\n");
}

TEST_F(ObjcTagsTest, MethodsAreOnlyTaggedInObjcScopes) {
  MethodPrototypeList list;
  MethodPrototype make = Method("make", 3);
  make.isClassMethod = true;
  AddMethod(list, make, true);
  AddMethod(list, Method("run", 4), false);
  builder.inTypedef = true;
  EndObjcMethod(builder, list);
  EXPECT_EQ(Tags(), "");
  EXPECT_FALSE(builder.inTypedef);
  Open("N", kNamespaceKind);
  EndObjcMethod(builder, list);
  EXPECT_EQ(Tags(), "");
  Open("Foo", kImplementationKind);
  builder.inTypedef = true;
  EndObjcMethod(builder, list);
  EXPECT_EQ(Tags(),
            "make\ta.h\t3;\"\tO\timplementation:N::Foo\n"
            "run\ta.h\t4;\"\ti\timplementation:N::Foo\n");
  EXPECT_FALSE(builder.inTypedef);
}

TEST_F(ObjcTagsTest, ScopesAndCategories) {
  OpenObjcInterface(builder, Name("Foo", 1), kNoCategory, true);
  EXPECT_EQ(Tags(), "Foo\ta.h\t1;\"\tX\n");
  EXPECT_EQ(builder.CurrentNamespaceName(), "Foo");
  builder.PopClass(2);
  OpenObjcInterface(builder, Name("Foo", 3), Name("Bar", 3), true);
  EXPECT_EQ(Tags(), "Foo(Bar)\ta.h\t3;\"\tX\n");
  EXPECT_EQ(builder.CurrentNamespaceName(), "Foo(Bar)");
  builder.PopClass(4);
  OpenObjcInterface(builder, Name("P<Q>", 5), kNoCategory, false);
  EXPECT_EQ(Tags(), "P<Q>\ta.h\t5;\"\tY\n");
  builder.PopClass(6);
  OpenObjcImplementation(builder, Name("Foo", 7), Name("Bar", 7));
  EXPECT_EQ(Tags(), "Foo(Bar)\ta.h\t7;\"\tw\n");
  EXPECT_TRUE(builder.InObjc());
  EXPECT_EQ(builder.CurrentNamespaceKindName(), "implementation");
}

TEST_F(ObjcTagsTest, AnEndLeavesTheBraceOpenSoAVariableAfterItIsAMember) {
  OpenObjcInterface(builder, Name("Foo", 1), kNoCategory, true);
  builder.PopClass(2);
  Tags();
  EndSimpleDeclaration(builder, TypeDescriptor("int", 0, 3), Names({"a"}));
  EXPECT_EQ(Tags(), "a\ta.h\t1;\"\tm\n");
}

}  // namespace
}  // namespace vexltags
