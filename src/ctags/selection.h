// SPDX-License-Identifier: MIT
// Sets of fields, extras and kinds that option values select letter by letter.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vexltags::ctags {

/// A member of a set that option values name by its letter or, as `{name}`, by its name.
struct Choice {
  char letter;  ///< `-` if it has only a name.
  std::string_view name;
  bool isOn;  ///< Whether it is in the set by default.
  std::string_view description;
};

/// A set of the members of a table of at most 64.
class Selection {
 public:
  /// Starts with the members that are on by default. `choices` must outlive the object.
  explicit Selection(std::span<const Choice> choices);

  /// `choice` is one of the table.
  bool Has(const Choice& choice) const { return (members >> (&choice - choices.data()) & 1) != 0; }
  bool Has(std::string_view name) const;
  void Set(std::string_view name, bool on);

  /// Changes the set as `value` says: `*` is every member, and letters and names follow each other.
  /// Without a sign at its start, `value` is the whole new set; `+` and `-`, at the start or later,
  /// add and remove what follows. Returns what the table lacks, each as it was written.
  std::vector<std::string> Apply(std::string_view value);

 private:
  std::span<const Choice> choices;
  std::uint64_t members = 0;
};

/// The fields of a tag, and the additional tags and marks, as `--fields` and `--extras` name them.
std::span<const Choice> FieldChoices();
std::span<const Choice> ExtraChoices();

}  // namespace vexltags::ctags
