// SPDX-License-Identifier: MIT
// A tag as a record, and the one function that writes its line.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "output/dumper.h"

namespace vexltags {

/// An extension field, as the parts that follow each other on the line. A field without an opening
/// is absent.
struct TagField {
  std::string_view opening = {};  ///< A tab, and the key if it is fixed.
  std::string_view word = {};     ///< The word of a kind.
  std::string_view colon = {};    ///< ":" after a word, otherwise empty.
  std::string_view text = {};
  bool isPlain = false;  ///< Plain text, never cut; see `Tag::Pieces`.
};

/// The field "WORD:SCOPE". The word of some kinds is empty; the colon stays.
TagField ScopeField(std::string_view word, std::string_view scope);
/// The field "SCOPE" of Swift.
TagField BareScopeField(std::string_view scope);
/// The field "enum:SCOPE" of an enumerator.
TagField EnumField(std::string_view scope);
/// The field "typeref:TYPE".
TagField TyperefField(std::string_view type);
/// The field "typeref:WORD:TYPE".
TagField TyperefField(std::string_view word, std::string_view type);
/// `field` printed as plain text.
TagField Plain(TagField field);

/// One tag: everything that its line shows. The texts belong to the caller.
///
/// Every tag of every language is such a record. An action of a grammar calls a `Dump…` function of
/// its tag builder, which fills in the record and passes it to `ParserStateBase::Emit`. A
/// breakpoint there shows the rule that each tag comes from. A declaration has no tag if
///  - the parser does not see it: it is in a dropped branch of a conditional or in a function body;
///  - its rule has no action, as for a forward declaration of a type or an import;
///  - its rule fails, or an earlier error ends the file: see `--dumpErrors`;
///  - the time limit ends the file;
///  - its action drops it: `EndFunction` a friend that is only declared; `OpenClass` and `OpenEnum`
///    a made-up name; `EndObjcMethod` a method outside any Objective-C scope; `DumpEnumerator` an
///    enumerator outside any scope; the functions of declarations.h a name without a line, and
///    anything inside the braces of a function;
///  - `--debugDump` replaces it by a readable line, or in Python by nothing.
struct Tag {
  /// The pieces in which the sink gets the line. A formatted piece is cut at
  /// `Dumper::kLongestPiece` bytes, and each of its texts at a NUL byte; plain text is never cut. A
  /// line is complete after a piece that ends in a newline. So if the cut removes that newline, the
  /// next tag continues the line, and a plain file field that ends in a newline breaks the line.
  enum class Pieces : std::uint8_t {
    kSeparate,   ///< A formatted piece from the file field to the letter, then each field.
    kPlainFile,  ///< The same, but the file field is plain text.
    kOne,        ///< One formatted piece for all that follows the name, newline included.
  };

  std::string_view name;   ///< Printed with white space collapsed; plain text.
  std::int32_t line = -1;  ///< 1-based.
  char kind = ' ';         ///< One of `kind_letter`.
  Pieces pieces = Pieces::kSeparate;
  std::string_view prefix = {};  ///< Plain text before the name, such as "operator ".
  std::string_view suffix = {};  ///< Plain text after it, such as "(to:,by:)".
  std::string_view file = {};    ///< The file field; `ParserStateBase::Emit` fills it in.
  std::array<TagField, 2> fields = {};
};

/// Prints the line of `tag` to `dumper`.
void WriteTag(Dumper& dumper, const Tag& tag);

}  // namespace vexltags
