// SPDX-License-Identifier: MIT
// Tests of the pieces that the C family's tag lines are made of: which of them are cut, and where.
#include <gtest/gtest.h>

#include <string>

#include "cfamily/declarations.h"
#include "output/kinds.h"
#include "parserstate/line_pieces_test_support.h"

namespace vexltags {
namespace {

using testing_support::ExpectSamePieces;
using testing_support::Shown;
using testing_support::TagTexts;

constexpr int kLine = 12;

// Writes a tag by `action` inside the scope of the texts, which is of kind `kind`.
template <class Action>
auto Inside(long kind, Action action) {
  return [kind, action](Dumper& dumper, const TagTexts& texts) {
    const Options options;
    VexlTagsParser builder(options, dumper, texts.path);
    if (!texts.scope.empty()) builder.PushClass(TypeDescriptor(texts.scope, kind, 1));
    action(builder, texts);
  };
}

void PrintHead(Dumper& dumper, const TagTexts& texts, char letter) {
  dumper.Print(Shown(texts.name));
  dumper.PrintFormat("\t%s\t%d;\"\t%c", texts.path.c_str(), kLine, letter);
}

void PrintHeadWithPlainPath(Dumper& dumper, const TagTexts& texts, char letter) {
  dumper.Print(Shown(texts.name));
  dumper.Print("\t");
  dumper.Print(texts.path);
  dumper.PrintFormat("\t%d;\"\t%c", kLine, letter);
}

void PrintScope(Dumper& dumper, const TagTexts& texts, const char* word) {
  if (!Shown(texts.scope).empty()) dumper.PrintFormat("\t%s:%s", word, Shown(texts.scope).c_str());
}

TEST(CFamilyLinePieces, AClass) {
  ExpectSamePieces(Inside(kStructKind,
                          [](VexlTagsParser& builder, const TagTexts& texts) {
                            builder.DumpClass(TypeDescriptor(texts.name, kUnionKind, 1), kLine);
                          }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     PrintHead(dumper, texts, 'u');
                     PrintScope(dumper, texts, "struct");
                     dumper.Print("\n");
                   });
}

TEST(CFamilyLinePieces, AClassWithAQualifier) {
  ExpectSamePieces(Inside(kStructKind,
                          [](VexlTagsParser& builder, const TagTexts& texts) {
                            const std::string name = "Q::" + texts.name;
                            builder.DumpClass(TypeDescriptor(name, kUnionKind, 1), kLine);
                          }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     PrintHead(dumper, texts, 'u');
                     const bool isInScope = !texts.scope.empty();
                     const std::string scope = isInScope ? texts.scope + "::Q" : "Q";
                     dumper.PrintFormat("\t%s:%s", isInScope ? "struct" : "class",
                                        Shown(scope).c_str());
                     dumper.Print("\n");
                   });
}

TEST(CFamilyLinePieces, AMacroIsOnePieceAfterItsName) {
  ExpectSamePieces(
      Inside(kStructKind, [](VexlTagsParser& builder,
                             const TagTexts& texts) { builder.DumpMacro(texts.name, kLine); }),
      [](Dumper& dumper, const TagTexts& texts) {
        dumper.Print(Shown(texts.name));
        dumper.PrintFormat("\t%s\t%d;\"\t%c\n", texts.path.c_str(), kLine, 'd');
      });
}

TEST(CFamilyLinePieces, ATypedef) {
  for (const std::size_t length : {5, 1012, 1013, 1014, 1015, 2000}) {
    const std::string type = "struct " + std::string(length, 't') + " \n";
    ExpectSamePieces(Inside(kNamespaceKind,
                            [&type](VexlTagsParser& builder, const TagTexts& texts) {
                              builder.DumpTypedef(texts.name, TypeDescriptor(type, kStructKind, 1),
                                                  kLine);
                            }),
                     [length](Dumper& dumper, const TagTexts& texts) {
                       PrintHead(dumper, texts, 't');
                       const std::string shown = "struct:" + std::string(length, 't') + ":\n";
                       dumper.PrintFormat("\ttyperef:%s", shown.c_str());
                       PrintScope(dumper, texts, "namespace");
                       dumper.Print("\n");
                     });
  }
}

TEST(CFamilyLinePieces, AConcept) {
  ExpectSamePieces(Inside(kNamespaceKind,
                          [](VexlTagsParser& builder, const TagTexts& texts) {
                            builder.DumpConstraint(texts.name, TypeDescriptor("T", kNoKind, 1),
                                                   kLine);
                          }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     PrintHead(dumper, texts, 'C');
                     PrintScope(dumper, texts, "namespace");
                     dumper.Print("\n");
                   });
}

TEST(CFamilyLinePieces, AVariable) {
  ExpectSamePieces(Inside(kClassKind,
                          [](VexlTagsParser& builder, const TagTexts& texts) {
                            builder.DumpDeclDef(true, texts.name, TypeDescriptor("int", kNoKind, 1),
                                                kLine);
                          }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     PrintHeadWithPlainPath(dumper, texts, 'm');
                     PrintScope(dumper, texts, "class");
                     dumper.Print("\n");
                   });
}

TEST(CFamilyLinePieces, AQualifierIsCutWhereTheOpenScopeCanHoldVariables) {
  ExpectSamePieces(
      [](Dumper& dumper, const TagTexts& texts) {
        const Options options;
        VexlTagsParser builder(options, dumper, texts.path);
        builder.PushClass(TypeDescriptor("S", kStructKind, 1));
        const std::string name = texts.scope.empty() ? texts.name : texts.scope + "::" + texts.name;
        builder.DumpDeclDef(false, name, TypeDescriptor("int", kNoKind, 1), kLine);
      },
      [](Dumper& dumper, const TagTexts& texts) {
        PrintHeadWithPlainPath(dumper, texts, 'v');
        const std::string scope = texts.scope.empty() ? "S" : "S::" + texts.scope;
        dumper.PrintFormat("\t%s:%s", "struct", Shown(scope).c_str());
        dumper.Print("\n");
      });
}

TEST(CFamilyLinePieces, AQualifierOutsideAnyScopeIsNeverCut) {
  ExpectSamePieces(
      [](Dumper& dumper, const TagTexts& texts) {
        const Options options;
        VexlTagsParser builder(options, dumper, texts.path);
        const std::string name = texts.scope.empty() ? texts.name : texts.scope + "::" + texts.name;
        builder.DumpDeclDef(false, name, TypeDescriptor("int", kNoKind, 1), kLine);
      },
      [](Dumper& dumper, const TagTexts& texts) {
        PrintHeadWithPlainPath(dumper, texts, 'v');
        if (!texts.scope.empty()) {
          dumper.Print("\tclass:");
          dumper.Print(Shown(texts.scope));
        }
        dumper.Print("\n");
      });
}

TEST(CFamilyLinePieces, ANameAfterABrace) {
  for (const std::size_t length : {0, 5, 1006, 1007, 1008, 1009, 2000}) {
    const std::string type(length, 't');
    ExpectSamePieces(Inside(kNamespaceKind,
                            [&type](VexlTagsParser& builder, const TagTexts& texts) {
                              builder.DumpDeclaration(true, false, texts.name, kEnumKind, type,
                                                      kNamespaceKind, texts.scope, kLine);
                            }),
                     [&type](Dumper& dumper, const TagTexts& texts) {
                       PrintHead(dumper, texts, 'm');
                       dumper.PrintFormat("\t%s:%s", "namespace", Shown(texts.scope).c_str());
                       if (!type.empty())
                         dumper.PrintFormat("\ttyperef:%s:%s", "enum", type.c_str());
                       dumper.Print("\n");
                     });
  }
}

TEST(CFamilyLinePieces, ALongTypeWithWhiteSpaceIsCollapsedBeforeItIsCut) {
  const std::string type = "t" + std::string(9000, ' ') + std::string(2000, 'u');
  ExpectSamePieces(Inside(kNoKind,
                          [&type](VexlTagsParser& builder, const TagTexts& texts) {
                            builder.DumpDeclaration(false, true, texts.name, kStructKind, type,
                                                    kNoKind, "", kLine);
                          }),
                   [&type](Dumper& dumper, const TagTexts& texts) {
                     PrintHead(dumper, texts, 't');
                     dumper.PrintFormat("\ttyperef:%s:%s", "struct", Shown(type).c_str());
                     dumper.Print("\n");
                   });
}

TEST(CFamilyLinePieces, AMethodsScopeIsNeverCut) {
  ExpectSamePieces(Inside(kProtocolKind,
                          [](VexlTagsParser& builder, const TagTexts& texts) {
                            builder.DumpMethod(MethodPrototype(Name(texts.name, kLine)));
                          }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     PrintHead(dumper, texts, 'o');
                     const char* word = texts.scope.empty() ? "" : "protocol";
                     dumper.Print("\t" + std::string(word) + ":" + Shown(texts.scope) + "\n");
                   });
}

TEST(CFamilyLinePieces, AFunctionIsNeverCut) {
  ExpectSamePieces(Inside(kClassKind,
                          [](VexlTagsParser& builder, const TagTexts& texts) {
                            FunctionPrototype function;
                            function.SetName(Name(texts.name, kLine));
                            function.DumpDeclDef(builder, kLine);
                          }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     PrintHeadWithPlainPath(dumper, texts, 'p');
                     if (!texts.scope.empty()) dumper.Print("\tclass:" + Shown(texts.scope));
                     dumper.Print("\n");
                   });
}

TEST(CFamilyLinePieces, AnOperatorIsNeverCut) {
  ExpectSamePieces(Inside(kNamespaceKind,
                          [](VexlTagsParser& builder, const TagTexts& texts) {
                            FunctionPrototype function;
                            function.SetOperator(texts.scope, Name(texts.name, kLine));
                            function.isDefinition = true;
                            function.DumpDeclDef(builder, kLine);
                          }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     dumper.Print("operator ");
                     PrintHeadWithPlainPath(dumper, texts, 'f');
                     if (!texts.scope.empty()) {
                       const std::string scope = Shown(texts.scope);
                       dumper.Print("\tnamespace:" + scope + "::" + scope);
                     }
                     dumper.Print("\n");
                   });
}

}  // namespace
}  // namespace vexltags
