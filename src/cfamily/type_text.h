// SPDX-License-Identifier: MIT
// Helpers on the text of types and qualified names, without any knowledge of tokens or scopes.
#pragma once

#include <string>

namespace vexltags {

/// True for an identifier in ASCII: a letter or `_`, then letters, digits and `_`.
bool LooksLikeSimpleTypeName(const std::string& text);
/// True for one of the 13 type words of the language, such as "char16_t"; not for "long int".
bool IsBuiltInType(const std::string& text);
/// True for "size_t", "ssize_t" and "ptrdiff_t".
bool IsWellKnownType(const std::string& text);

/// Cuts `text` at its last "::", angle brackets not regarded. Without one, or with one at the very
/// end, the whole text is the name and the qualifier is empty. The results may alias `text`.
void SplitNameQualifier(const std::string& text, std::string& name, std::string& qualifier);

/// Joins `text` and `qualifier` with "::" where both are there. With `always` a non-empty text gets
/// its "::" even when no qualifier follows, which makes of it a prefix for a name.
std::string AppendQualifier(const std::string& text, const std::string& qualifier, bool always);

/// The text of a template argument list on one line: each line feed and each carriage return
/// becomes a blank, all else stays.
std::string TemplateArgumentText(std::string text);

/// The text that a template parameter gives to its template's name: `name`, or "anon_value" when it
/// is empty.
std::string TemplateParameterText(const std::string& name);
/// The same for a value parameter such as `int N` or `Foo`. `name` wins; without one a bare type
/// that may well be a name stands in, and a type that can only be a type does not.
std::string ValueParameterText(const std::string& type, const std::string& name);

}  // namespace vexltags
