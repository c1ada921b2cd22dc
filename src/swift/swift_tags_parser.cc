// SPDX-License-Identifier: MIT
// Builds the tags of Swift declarations.
#include "swift/swift_tags_parser.h"

#include <optional>
#include <utility>

#include "engine/std_string.h"
#include "output/kinds.h"

namespace vexltags {

SwiftTagsParser::SwiftTagsParser(const Options& runOptions, Dumper& sink, std::string storedPath)
    : ParserStateBase(runOptions, sink, std::move(storedPath), ".") {}

SwiftTagsParser::~SwiftTagsParser() = default;

const std::string& SwiftTagsParser::CurrentNamespaceName() const { return JoinedScope(); }

void SwiftTagsParser::DumpSwiftFunction(const std::string& name, const ParamList& params,
                                        int line) {
  DumpTrackPerFileDeclVolume();
  std::string labels;
  if (name != "deinit") labels = "(" + ConcatenateNamesUsingSeparator(params.params, ",") + ")";
  Emit({.name = name,
        .line = line,
        .kind = kind_letter::kFunctionDefinition,
        .suffix = labels,
        .fields = {DottedScopeField()}});
}

void SwiftTagsParser::DumpKeywordFunction(pANTLR3_COMMON_TOKEN keyword) {
  DumpSwiftFunction(TokenString(keyword), ParamList(), TokenLine(keyword));
}

void SwiftTagsParser::Dump(const TypeDescriptor& descriptor) {
  DumpTrackPerFileDeclVolume();
  Emit({.name = descriptor.name,
        .line = descriptor.line,
        .kind = ScopeKindLetter(descriptor.kind),
        .fields = {DottedScopeField()}});
}

void SwiftTagsParser::DumpClass(const TypeDescriptor& descriptor) {
  TypeDescriptor shown = descriptor;
  if (shown.kind != kClassKind) shown.kind = kStructKind;
  Dump(shown);
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
  ParserStateBase::OpenEnum(TypeDescriptor(kEnumKind, name));
}

ParserStateBase::CurlyType SwiftTagsParser::PopRCurly(int line) {
  const std::optional<CurlyType> type = PopCurly();
  if (!type) {
    ReportError("} imbalance", line);
    return CurlyType::Function;
  }
  PopClass(line);
  return *type;
}

TagField SwiftTagsParser::DottedScopeField() const {
  return CollapsedScope().empty() ? TagField() : BareScopeField(CollapsedScope());
}

}  // namespace vexltags
