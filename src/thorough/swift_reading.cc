// SPDX-License-Identifier: MIT
// The reading of Swift files.
#include "thorough/swift_reading.h"

#include "swift/swift_tags_parser.h"
#include "thorough/swift_declarations.h"

namespace vexltags::thorough {

void SwiftReading::PrepareText(pANTLR3_INPUT_STREAM input) {
  source = {static_cast<const char*>(input->data), input->sizeBuf};
  input->data = input->nextChar = text.Simplify(source).data();
}

bool SwiftReading::PrepareTokens(TokenTable& /*tokens*/) { return true; }

void SwiftReading::Parse(ItemParser& parser) {
  SwiftDeclarations(parser.Tokens(), source, parser.TagBuilder<SwiftTagsParser>()).ReadAll();
}

}  // namespace vexltags::thorough
