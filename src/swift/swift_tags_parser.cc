// SPDX-License-Identifier: MIT
// Builds the tag lines of Swift declarations and keeps track of the open types.
#include "swift/swift_tags_parser.h"

#include <cstdio>
#include <utility>

#include "driver/text.h"
#include "parserstate/std_string.h"

namespace vexltags {
namespace {

constexpr long kClassKind = 1;
constexpr long kStructKind = 2;
constexpr long kEnumKind = 4;
constexpr std::size_t kLongestPiece = 1023;  ///< What the sink keeps of a formatted piece.

}  // namespace

SwiftTagsParser::SwiftTagsParser(const Options& runOptions, Dumper& sink, std::string storedPath)
    : ParserStateBase(runOptions, sink, std::move(storedPath)) {}

SwiftTagsParser::~SwiftTagsParser() = default;

std::string SwiftTagsParser::CurrentNamespaceName() const {
  return ConcatenateNamesUsingSeparator(classStack, ".");
}

void SwiftTagsParser::DumpSwiftFunction(const std::string& name, const ParamList& params,
                                        int line) {
  DumpTrackPerFileDeclVolume();
  dumper->Print(CollapseWhitespace(name, " "));
  if (name != "deinit") {
    dumper->Print("(" + ConcatenateNamesUsingSeparator(params.params, ",") + ")");
  }
  DumpLineAndScope(line, "f");
}

void SwiftTagsParser::DumpKeywordFunction(pANTLR3_COMMON_TOKEN keyword) {
  DumpSwiftFunction(TokenString(keyword), ParamList(), TokenLine(keyword));
}

void SwiftTagsParser::Dump(const TypeDescriptor& descriptor) {
  DumpTrackPerFileDeclVolume();
  dumper->Print(CollapseWhitespace(descriptor.name, " "));
  DumpLineAndScope(descriptor.line, NameSpaceSelector(descriptor.kind));
}

void SwiftTagsParser::DumpClass(const TypeDescriptor& descriptor) {
  DumpTrackPerFileDeclVolume();
  dumper->Print(CollapseWhitespace(descriptor.name, " "));
  DumpLineAndScope(descriptor.line,
                   NameSpaceSelector(descriptor.kind == kClassKind ? kClassKind : kStructKind));
}

void SwiftTagsParser::DumpNamed(long kind, const Name& name) { Dump(TypeDescriptor(kind, name)); }

void SwiftTagsParser::DumpEach(long kind, const VectorOfName& names) {
  for (const Name& name : names.names) DumpNamed(kind, name);
}

void SwiftTagsParser::OpenScope(long kind, const Name& name) {
  const TypeDescriptor descriptor(kind, name);
  Dump(descriptor);
  PushClass(descriptor);
}

void SwiftTagsParser::OpenEnum(const Name& name) {
  TypeDescriptor descriptor;
  descriptor.kind = kEnumKind;
  descriptor.ResetNameAndLine(name);
  DumpEnum(name);
  PushClass(descriptor);
}

ParserStateBase::CurlyType SwiftTagsParser::PopRCurly(int line) {
  if (curlyStack.empty()) {
    if (options->dumpErrors) {
      std::fprintf(stderr, "error -- } imbalance %s:%d\n", FileField().c_str(), line);
    }
    return CurlyType::Function;
  }
  const CurlyType type = curlyStack.back().first;
  if (--curlyStack.back().second == 0) curlyStack.pop_back();
  PopClass(line);
  return type;
}

void SwiftTagsParser::DumpLineAndScope(int line, const std::string& letter) {
  dumper->PrintFormat("\t%s\t%d;\"\t%s", FileField().c_str(), line, letter.c_str());
  const std::string scope = ScopeText();
  if (!scope.empty()) dumper->PrintFormat("\t%s", scope.c_str());
  dumper->Print("\n");
}

std::string SwiftTagsParser::ScopeText() const {
  std::string names;
  for (const TypeDescriptor& type : classStack) {
    if (&type != &classStack.front()) names += '.';
    names += type.name;
    // With thousands of types in each other the rest would cost time only.
    if (names.size() > kLongestPiece) {
      std::string collapsed = CollapseWhitespace(names, " ");
      if (collapsed.size() > kLongestPiece) return collapsed;
    }
  }
  return CollapseWhitespace(names, " ");
}

}  // namespace vexltags
