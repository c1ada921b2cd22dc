// SPDX-License-Identifier: MIT
// Tests of the pieces that Swift's tag lines are made of: which of them are cut, and where.
#include <gtest/gtest.h>

#include <string>

#include "output/kinds.h"
#include "parserstate/line_pieces_test_support.h"
#include "swift/swift_tags_parser.h"

namespace vexltags {
namespace {

using testing_support::ExpectSamePieces;
using testing_support::Shown;
using testing_support::TagTexts;

constexpr int kLine = 12;

// Writes a tag by `action` inside the scope of the texts.
template <class Action>
auto Inside(Action action) {
  return [action](Dumper& dumper, const TagTexts& texts) {
    const Options options;
    SwiftTagsParser builder(options, dumper, texts.path);
    if (!texts.scope.empty()) {
      builder.PushClass(ParserStateBase::TypeDescriptor(texts.scope, kClassKind, 1));
    }
    action(builder, texts);
  };
}

void PrintRest(Dumper& dumper, const TagTexts& texts, char letter) {
  dumper.PrintFormat("\t%s\t%d;\"\t%c", texts.path.c_str(), kLine, letter);
  if (!Shown(texts.scope).empty()) dumper.PrintFormat("\t%s", Shown(texts.scope).c_str());
  dumper.Print("\n");
}

TEST(SwiftLinePieces, AFunctionWithLongLabels) {
  const std::string label(1500, 'l');
  ExpectSamePieces(Inside([&label](SwiftTagsParser& builder, const TagTexts& texts) {
                     ParamList params;
                     params.Add(Param("", label + ":", kLine));
                     params.Add(Param("", "_", kLine));
                     builder.DumpSwiftFunction(texts.name, params, kLine);
                   }),
                   [&label](Dumper& dumper, const TagTexts& texts) {
                     dumper.Print(Shown(texts.name));
                     dumper.Print("(" + label + ":,_)");
                     PrintRest(dumper, texts, 'f');
                   });
}

TEST(SwiftLinePieces, ATypeOrVariable) {
  ExpectSamePieces(Inside([](SwiftTagsParser& builder, const TagTexts& texts) {
                     builder.DumpNamed(kVariableKind, Name(texts.name, kLine));
                   }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     dumper.Print(Shown(texts.name));
                     PrintRest(dumper, texts, 'V');
                   });
}

TEST(SwiftLinePieces, AClassByItsOwnCall) {
  ExpectSamePieces(Inside([](SwiftTagsParser& builder, const TagTexts& texts) {
                     builder.DumpClass({texts.name, kClassKind, kLine});
                   }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     dumper.Print(Shown(texts.name));
                     PrintRest(dumper, texts, 'c');
                   });
}

}  // namespace
}  // namespace vexltags
