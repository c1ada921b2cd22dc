// SPDX-License-Identifier: MIT
// A tag as a record, and the one function that writes its line.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "output/dumper.h"

namespace vexltags {

/// An extension field, in the parts that stand on the line one after the other. A field without
/// an opening is absent.
struct TagField {
  std::string_view opening = {};  ///< A tab, and the key where the form has a fixed one.
  std::string_view word = {};     ///< The word of a kind.
  std::string_view colon = {};    ///< Between word and text; empty in a form without a word.
  std::string_view text = {};
  bool isPlain = false;  ///< Printed as plain text, so that no length cuts it.
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

/// One tag: all that its line shows. The texts belong to the caller.
///
/// Every tag of every language is such a record, made by a `Dump…` function of a tag builder, which
/// an action of a grammar calls, and handed to `ParserStateBase::Emit`. A breakpoint there shows
/// which rule and which builder a tag comes from. A declaration without a tag is one of these:
///
///  - Its rule failed, or never began: the parser reads the text as something else, or recovers
///    from an error before it. `--dumpErrors` reports where. No action runs in a speculative parse,
///    nor after the time limit has ended a file.
///  - `EndFunction`: a friend that is only declared. A function without a name.
///  - The calls of declarations.h: a name without a line, which no token filled; anything inside
///    the braces of a function.
///  - `OpenClass`, `OpenEnum`: the name is made up. `OpenStdNamespace`: a macro opened it.
///  - `EndObjcMethod`: no Objective-C scope is open.
///  - `DumpEnumerator`: no scope is open. `--dumpErrors` reports it.
///  - `--debugDump`: a readable line takes the place of the tag; Swift does so for enums only, and
///    Python prints nothing.
struct Tag {
  /// Which pieces the sink gets. A formatted piece is cut at `Dumper::kLongestPiece` bytes and each
  /// of its texts at a NUL byte; plain text is neither. A line ends with a piece that ends in a
  /// newline, so a line goes on if the cut takes its newline, and breaks after a plain path that
  /// ends in one.
  enum class Pieces : std::uint8_t {
    kSeparate,   ///< A formatted piece from the file field to the letter, then each field.
    kPlainFile,  ///< The same, with the file field as plain text in front.
    kOne,        ///< One formatted piece for all that follows the name, newline included.
  };

  std::string_view name;   ///< Printed with white space collapsed, never cut.
  std::int32_t line = -1;  ///< 1-based.
  char kind = ' ';         ///< One of `kind_letter`.
  Pieces pieces = Pieces::kSeparate;
  std::string_view prefix = {};  ///< Plain text before the name, such as "operator ".
  std::string_view suffix = {};  ///< Plain text after it, such as "(to:,by:)".
  std::string_view file = {};    ///< The file field; `ParserStateBase::Emit` fills it in.
  std::array<TagField, 2> fields = {};
};

/// Hands the line of `tag` to `dumper`.
void WriteTag(Dumper& dumper, const Tag& tag);

}  // namespace vexltags
