// SPDX-License-Identifier: MIT
// What `--version`, `--help` and the `--list-…` options print.
#include "ctags/listings.h"

#include <cstdio>
#include <string>

#include "base/version.h"
#include "ctags/messages.h"

namespace vexltags::ctags {
namespace {

// Callers look for "Universal Ctags" in what `--version` prints, and for "+interactive" in the
// help.
constexpr const char* kVersionText =
    "vexltags-ctags %s, with the options and output of Universal Ctags 5.9.0\n";

constexpr const char* kHelpText =
    R"(Usage: vexltags-ctags [options] [file...]

Writes tags of C, C++, Objective-C, Swift and Python for editors that call ctags.

  -f FILE, -o FILE       Write the tags to FILE; "-" is standard output [tags].
  -L FILE                Read the names of sources from FILE; "-" is standard input.
  -R, --recurse[=no]     Enter folders; without a file, the working directory.
  -a, --append[=no]      Keep the tags that are in the file.
  -n, -N                 Addresses are line numbers; search patterns.
  -u                     Do not sort.
  -x                     Write a table: see --_xformat.
  -e                     Write a tags table for Emacs.
  --excmd=number|pattern|combine
                         Form of addresses [pattern].
  --exclude=PATTERN      Leave out files and folders; "@FILE" has one pattern a line.
  --exclude-exception=PATTERN
                         Read these all the same.
  --extras=[+|-]FLAGS    Additional tags: see --list-extras.
  --fields=[+|-]FLAGS    Fields of tags: see --list-fields.
  --LANG-kinds=[+|-]KINDS, --kinds-LANG=[+|-]KINDS, --kinds-all=[+|-]KINDS
                         Kinds of tags: see --list-kinds.
  --langmap=LANG:.EXT    Read files with this suffix as LANG.
  --language-force=LANG  Read all files as LANG.
  --languages=[+|-]LIST  Read only these languages [all].
  --links[=no]           Follow symbolic links to folders.
  --maxdepth=N           Enter at most N levels of folders.
  --options=FILE         Read options from FILE, one a line, or from a folder of *.ctags files.
  --options-maybe=FILE   The same, if FILE exists.
  --output-format=u-ctags|e-ctags|json|xref|etags
                         Form of the output [u-ctags].
  --quiet[=no]           Do not report unknown options.
  --sort=yes|no|foldcase Order of the tags [yes].
  --tag-relative=yes|no|always|never
                         Paths relative to the folder of the tags file [no].
  --_xformat=TEMPLATE    Form of a line of the table, such as "%N %K %n %F".
  --_interactive[=default|sandbox]
                         Answer requests from standard input.
  --list-excludes, --list-extras, --list-features, --list-fields, --list-kinds[=LANG],
  --list-kinds-full[=LANG], --list-languages, --list-maps[=LANG]
                         Show what there is.
  --help, -?             Show help.
  --version              Show version.

Optional features: +json +interactive +sandbox +option-directory +wildcards
)";

constexpr const char* kFeatures =
    "interactive       answers requests from standard input\n"
    "json              writes tags as JSON\n"
    "option-directory  reads options from folders\n"
    "sandbox           answers requests without access to files\n"
    "wildcards         matches patterns\n";

void PrintChoices(std::span<const Choice> choices) {
  std::puts("#LETTER NAME       ENABLED DESCRIPTION");
  for (const Choice& choice : choices) {
    std::printf("%c       %-10s %-7s %s\n", choice.letter, std::string(choice.name).c_str(),
                choice.isOn ? "yes" : "no", std::string(choice.description).c_str());
  }
}

void PrintKinds(const Language& language, bool full) {
  if (full) {
    PrintChoices(language.kinds);
    return;
  }
  for (const Kind& kind : language.kinds) {
    std::printf("%c  %s%s\n", kind.letter, std::string(kind.description).c_str(),
                kind.isOn ? "" : " [off]");
  }
}

void PrintMaps(const Language& language) {
  std::printf("%-10s", std::string(language.name).c_str());
  for (const std::string_view suffix : language.suffixes) {
    std::printf(" *%s", std::string(suffix).c_str());
  }
  std::puts("");
}

bool PrintOfLanguages(std::string_view name, std::string_view value) {
  const bool all = value.empty() || Lower(value) == "all";
  const Language* only = all ? nullptr : FindLanguage(value);
  if (!all && only == nullptr) {
    Report("Unknown language \"" + std::string(value) + "\" in \"" + std::string(name) +
           "\" option");
    return false;
  }
  for (const Language& language : Languages()) {
    if (only != nullptr && only != &language) continue;
    if (name == "list-maps") {
      PrintMaps(language);
      continue;
    }
    if (all) std::printf("%s\n", std::string(language.name).c_str());
    PrintKinds(language, name == "list-kinds-full");
  }
  return true;
}

}  // namespace

bool PrintListing(std::string_view name, std::string_view value, const Settings& settings) {
  if (name == "help") {
    std::fputs(kHelpText, stdout);
  } else if (name == "version") {
    std::printf(kVersionText, kVersion);
  } else if (name == "list-excludes") {
    for (const std::string& pattern : settings.exclusions) std::puts(pattern.c_str());
  } else if (name == "list-extras") {
    PrintChoices(ExtraChoices());
  } else if (name == "list-features") {
    std::fputs(kFeatures, stdout);
  } else if (name == "list-fields") {
    PrintChoices(FieldChoices());
  } else if (name == "list-languages") {
    for (const Language& language : Languages()) {
      std::printf("%s%s\n", std::string(language.name).c_str(),
                  settings.languages[IndexOf(language)] ? "" : " [disabled]");
    }
  } else {
    return PrintOfLanguages(name, value);
  }
  return true;
}

}  // namespace vexltags::ctags
