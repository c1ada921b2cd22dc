// SPDX-License-Identifier: MIT
// The settings of a run of vexltags-ctags.
#include "ctags/settings.h"

#include <iterator>

namespace vexltags::ctags {

// Names that no source tree means to have indexed: the folders of version control, editors' and
// compilers' leftovers.
namespace {

constexpr const char* kDefaultExclusions[] = {
    ".git", ".hg", ".svn", ".bzr", "_darcs", "CVS",    "RCS",
    "SCCS", "*.o", "*.so", "*.a",  "*~",     ".*.swp", "*.pyc",
};

}  // namespace

Settings::Settings()
    : xformat("%-16N %-10K %4n %-16F %C"),
      fields(FieldChoices()),
      extras(ExtraChoices()),
      exclusions(std::begin(kDefaultExclusions), std::end(kDefaultExclusions)) {
  languages.fill(true);
  for (const Language& language : Languages()) kinds.emplace_back(language.kinds);
}

bool Settings::Shows(std::string_view name, char letter) const {
  if (format != Format::kXref) return format != Format::kEtags && fields.Has(name);
  return xformat.find(letter) != std::string::npos || xformat.find(name) != std::string::npos;
}

}  // namespace vexltags::ctags
