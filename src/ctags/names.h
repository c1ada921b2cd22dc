// SPDX-License-Identifier: MIT
// Names as callers of ctags expect them: identifiers that occur in the source.
#pragma once

#include <string>
#include <string_view>

#include "ctags/languages.h"

namespace vexltags::ctags {

/// Returns the identifier, operator or selector in `name`, the name of a tag: without template
/// arguments (`Box<int>`), protocols (`Drawing<NSObject>`), categories (`View(Extra)`) or Swift
/// labels (`move(to:)`).
std::string PlainName(std::string_view name, const Language& language);

/// Returns `scope`, the names of a scope, each in its plain form.
std::string PlainScope(std::string_view scope, const Language& language);

/// Returns whether `line` has `name` after `::` and the last name of the C++ scope `scope`, which
/// can have template arguments, as where a member is defined outside its class.
bool IsQualifiedIn(std::string_view line, std::string_view name, std::string_view scope);

/// Returns the category in the name of an Objective-C class or scope, such as "Extra" for
/// `View(Extra)`; empty if there is none.
std::string CategoryOf(std::string_view name, const Language& language);

/// Returns the labels in the name of a Swift function as a signature, such as "(to:_:)"; empty if
/// the name has none, as for all other languages.
std::string LabelsOf(std::string_view name, const Language& language);

}  // namespace vexltags::ctags
