// SPDX-License-Identifier: MIT
// Builds the tag lines of Swift declarations and keeps track of the open types.
#include "swift/swift_tags_parser.h"

#include <cstdio>
#include <utility>

#include "engine/std_string.h"

namespace vexltags {

SwiftTagsParser::SwiftTagsParser(const Options& runOptions, Dumper& sink, std::string storedPath)
    : ParserStateBase(runOptions, sink, std::move(storedPath), ".") {}

SwiftTagsParser::~SwiftTagsParser() = default;

const std::string& SwiftTagsParser::CurrentNamespaceName() const { return JoinedScope(); }

void SwiftTagsParser::DumpSwiftFunction(const std::string& name, const ParamList& params,
                                        int line) {
  DumpTrackPerFileDeclVolume();
  PrintCollapsed(name);
  if (name != "deinit") {
    dumper->Print("(" + ConcatenateNamesUsingSeparator(params.params, ",") + ")");
  }
  DumpRest(line, "f");
}

void SwiftTagsParser::DumpKeywordFunction(pANTLR3_COMMON_TOKEN keyword) {
  DumpSwiftFunction(TokenString(keyword), ParamList(), TokenLine(keyword));
}

void SwiftTagsParser::Dump(const TypeDescriptor& descriptor) {
  DumpTrackPerFileDeclVolume();
  PrintCollapsed(descriptor.name);
  DumpRest(descriptor.line, NameSpaceSelector(descriptor.kind));
}

void SwiftTagsParser::DumpClass(const TypeDescriptor& descriptor) {
  DumpTrackPerFileDeclVolume();
  PrintCollapsed(descriptor.name);
  DumpRest(descriptor.line,
           NameSpaceSelector(descriptor.kind == kClassKind ? kClassKind : kStructKind));
}

void SwiftTagsParser::DumpNamed(long kind, const Name& name) { Dump(TypeDescriptor(kind, name)); }

void SwiftTagsParser::DumpEach(long kind, const VectorOfName& names) {
  for (const Name& name : names.names) DumpNamed(kind, name);
}

void SwiftTagsParser::OpenType(long kind, const Name& name) {
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

void SwiftTagsParser::DumpRest(int line, const std::string& letter) {
  PrintPosition(line, letter);
  if (!CollapsedScope().empty()) dumper->PrintPiece({"\t", CollapsedScopeForPiece()});
  dumper->Print("\n");
}

}  // namespace vexltags
