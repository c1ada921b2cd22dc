// SPDX-License-Identifier: MIT
// The long options of vexltags-ctags and what each does.
#include <cstdlib>
#include <cstring>
#include <optional>

#include "ctags/command_line.h"
#include "ctags/listings.h"
#include "ctags/messages.h"
#include "ctags/text_file.h"

namespace vexltags::ctags {
namespace {

/// Returns what a value means for an option that is on or off; nothing if it means neither.
std::optional<bool> BooleanOf(std::string_view value) {
  const std::string text = Lower(value);
  for (const char* on : {"", "1", "y", "yes", "on", "true"}) {
    if (text == on) return true;
  }
  for (const char* off : {"0", "n", "no", "off", "false"}) {
    if (text == off) return false;
  }
  return std::nullopt;
}

/// Calls `use` with each part of `list` between separators.
template <class Use>
void ForEachPart(std::string_view list, char separator, Use use) {
  for (std::size_t at = 0; at < list.size();) {
    const std::size_t end = std::min(list.find(separator, at), list.size());
    if (end > at) use(list.substr(at, end - at));
    at = end + 1;
  }
}

}  // namespace

// Names that callers or files of options may use although they have no meaning here have `Ignore`.
const CommandLine::LongOption CommandLine::kLongOptions[] = {
    {"_interactive", &CommandLine::InteractiveMode},
    {"_xformat", &CommandLine::Xformat, true},
    {"append", &CommandLine::Append},
    {"config-filename", &CommandLine::Ignore},
    {"etags-include", &CommandLine::Ignore},
    {"exclude", &CommandLine::Exclude},
    {"exclude-exception", &CommandLine::ExcludeException},
    {"excmd", &CommandLine::Excmd, true},
    {"extra", &CommandLine::Extras},
    {"extras", &CommandLine::Extras},
    {"fields", &CommandLine::Fields},
    {"file-scope", &CommandLine::Extras},
    {"filter-terminator", &CommandLine::Ignore},
    {"force-quit", &CommandLine::Ignore},
    {"format", &CommandLine::FormatNumber, true},
    {"guess-language-eagerly", &CommandLine::Ignore},
    {"help", &CommandLine::List},
    {"if0", &CommandLine::Ignore},
    {"input-encoding", &CommandLine::Ignore},
    {"kinddef", &CommandLine::Ignore},
    {"langdef", &CommandLine::Ignore},
    {"langmap", &CommandLine::Langmap, true},
    {"language-force", &CommandLine::LanguageForce, true},
    {"languages", &CommandLine::LanguageList, true},
    {"line-directives", &CommandLine::Ignore},
    {"links", &CommandLine::Links},
    {"list-excludes", &CommandLine::List},
    {"list-extras", &CommandLine::List},
    {"list-features", &CommandLine::List},
    {"list-fields", &CommandLine::List},
    {"list-kinds", &CommandLine::List},
    {"list-kinds-full", &CommandLine::List},
    {"list-languages", &CommandLine::List},
    {"list-maps", &CommandLine::List},
    {"machinable", &CommandLine::Ignore},
    {"maxdepth", &CommandLine::MaxDepth, true},
    {"optlib-dir", &CommandLine::Ignore},
    {"options", &CommandLine::OptionsFile, true},
    {"options-maybe", &CommandLine::OptionsMaybe, true},
    {"output-encoding", &CommandLine::Ignore},
    {"output-format", &CommandLine::OutputFormat, true},
    {"pattern-length-limit", &CommandLine::Ignore},
    {"put-field-prefix", &CommandLine::Ignore},
    {"quiet", &CommandLine::Quiet},
    {"recurse", &CommandLine::Recurse},
    {"sort", &CommandLine::Sort},
    {"tag-relative", &CommandLine::TagRelativeTo},
    {"totals", &CommandLine::Ignore},
    {"use-slash-as-filename-separator", &CommandLine::Ignore},
    {"verbose", &CommandLine::Ignore},
    {"version", &CommandLine::List},
    {"with-list-header", &CommandLine::Ignore},
    {"", nullptr},
};

ParseResult CommandLine::Ignore(std::string_view /*name*/, std::string_view /*value*/) {
  return ParseResult::kRun;
}

ParseResult CommandLine::Append(std::string_view name, std::string_view value) {
  const std::optional<bool> on = BooleanOf(value);
  if (!on) return Invalid(name);
  settings.append = *on;
  return ParseResult::kRun;
}

ParseResult CommandLine::Exclude(std::string_view /*name*/, std::string_view value) {
  if (value.empty()) {
    settings.exclusions.clear();
  } else if (value.front() == '@') {
    const std::string path(value.substr(1));
    std::vector<std::string> patterns;
    if (const int reason = ReadLines(path, patterns); reason != 0) {
      Warn("cannot open exclusion file \"" + path + "\" : " + std::strerror(reason));
      return ParseResult::kRun;
    }
    for (std::string& pattern : patterns) {
      if (pattern.ends_with('\r')) pattern.pop_back();
      if (!pattern.empty()) settings.exclusions.push_back(std::move(pattern));
    }
  } else {
    settings.exclusions.emplace_back(value);
  }
  return ParseResult::kRun;
}

ParseResult CommandLine::ExcludeException(std::string_view /*name*/, std::string_view value) {
  if (!value.empty()) settings.exceptions.emplace_back(value);
  return ParseResult::kRun;
}

ParseResult CommandLine::Excmd(std::string_view name, std::string_view value) {
  if (value == "n" || value == "number") {
    settings.address = Address::kLine;
  } else if (value == "p" || value == "pattern" || value == "m" || value == "mixed") {
    settings.address = Address::kPattern;
  } else if (value == "C" || value == "combine") {
    settings.address = Address::kCombined;
  } else {
    return Invalid(name);
  }
  return ParseResult::kRun;
}

ParseResult CommandLine::Extras(std::string_view name, std::string_view value) {
  if (name == "file-scope") {
    const std::optional<bool> on = BooleanOf(value);
    if (!on) return Invalid(name);
    settings.extras.Set("fileScope", *on);
    return ParseResult::kRun;
  }
  const bool hadPseudo = settings.extras.Has("pseudo");
  ReportChoices(settings.extras.Apply(value), name);
  // Header lines on standard output have to be asked for.
  if (!hadPseudo || value.find_first_of("p*") != std::string_view::npos ||
      value.find("{pseudo}") != std::string_view::npos) {
    settings.hasPseudoChoice = true;
  }
  return ParseResult::kRun;
}

ParseResult CommandLine::Fields(std::string_view name, std::string_view value) {
  ReportChoices(settings.fields.Apply(value), name);
  return ParseResult::kRun;
}

ParseResult CommandLine::FormatNumber(std::string_view name, std::string_view value) {
  if (value != "1" && value != "2") return Invalid(name);
  if (value == "1") Unknown("--format=1");
  return ParseResult::kRun;
}

ParseResult CommandLine::InteractiveMode(std::string_view name, std::string_view value) {
  if (value.empty() || value == "default") {
    settings.interactive = Interactive::kDefault;
  } else if (value == "sandbox") {
    settings.interactive = Interactive::kSandbox;
  } else {
    return Invalid(name);
  }
  return ParseResult::kRun;
}

ParseResult CommandLine::Langmap(std::string_view name, std::string_view value) {
  if (value == "default") {
    settings.mappings.clear();
    return ParseResult::kRun;
  }
  bool isValid = true;
  ForEachPart(value, ',', [this, &isValid](std::string_view part) {
    const std::size_t colon = part.find(':');
    if (colon == std::string_view::npos) {
      isValid = false;
      return;
    }
    const Language* language = FindLanguage(part.substr(0, colon));
    std::string_view map = part.substr(colon + 1);
    if (language == nullptr || map.starts_with('-')) return;
    if (map.starts_with('+')) map.remove_prefix(1);
    // A name in parentheses is matched as a whole.
    if (map.starts_with('(') && map.ends_with(')')) {
      settings.mappings.emplace_back(map.substr(1, map.size() - 2), language);
      return;
    }
    ForEachPart(map, '.', [this, language](std::string_view suffix) {
      settings.mappings.emplace_back("." + std::string(suffix), language);
    });
  });
  return isValid ? ParseResult::kRun : Invalid(name);
}

ParseResult CommandLine::LanguageForce(std::string_view /*name*/, std::string_view value) {
  settings.forced = FindLanguage(value);
  if (settings.forced != nullptr || Lower(value) == "auto") return ParseResult::kRun;
  Report("Unknown language \"" + std::string(value) + "\" in \"language-force\" option");
  return ParseResult::kFailed;
}

ParseResult CommandLine::LanguageList(std::string_view name, std::string_view value) {
  bool on = true;
  if (value.starts_with('+') || value.starts_with('-')) {
    on = value.front() == '+';
    value.remove_prefix(1);
  } else {
    settings.languages.fill(false);
  }
  ForEachPart(value, ',', [&](std::string_view part) {
    if (part.starts_with('+') || part.starts_with('-')) {
      on = part.front() == '+';
      part.remove_prefix(1);
    }
    if (Lower(part) == "all") {
      settings.languages.fill(on);
    } else if (const Language* language = FindLanguage(part)) {
      settings.languages[IndexOf(*language)] = on;
    } else if (!settings.isQuiet) {
      Warn("Unknown language \"" + std::string(part) + "\" in \"" + std::string(name) +
           "\" option");
    }
  });
  return ParseResult::kRun;
}

ParseResult CommandLine::Links(std::string_view name, std::string_view value) {
  const std::optional<bool> on = BooleanOf(value);
  if (!on) return Invalid(name);
  settings.followLinks = *on;
  return ParseResult::kRun;
}

ParseResult CommandLine::List(std::string_view name, std::string_view value) {
  return PrintListing(name, value, settings) ? ParseResult::kDone : ParseResult::kFailed;
}

ParseResult CommandLine::MaxDepth(std::string_view name, std::string_view value) {
  if (value.empty() || value.size() > 9 ||
      value.find_first_not_of("0123456789") != std::string_view::npos) {
    return Invalid(name);
  }
  settings.maxDepth = std::atol(std::string(value).c_str());
  return ParseResult::kRun;
}

ParseResult CommandLine::OptionsFile(std::string_view name, std::string_view value) {
  if (value.empty()) return Invalid(name);
  // It has its effect as the first argument only.
  if (value == "NONE") return ParseResult::kRun;
  return ReadOptions(std::string(value), true);
}

ParseResult CommandLine::OptionsMaybe(std::string_view /*name*/, std::string_view value) {
  return value.empty() ? ParseResult::kRun : ReadOptions(std::string(value), false);
}

ParseResult CommandLine::OutputFormat(std::string_view name, std::string_view value) {
  settings.isExuberant = value == "e-ctags";
  if (value == "u-ctags" || value == "e-ctags") {
    settings.format = Format::kTags;
  } else if (value == "json") {
    settings.format = Format::kJson;
  } else if (value == "xref") {
    settings.format = Format::kXref;
  } else if (value == "etags") {
    settings.format = Format::kEtags;
  } else {
    return Invalid(name);
  }
  return ParseResult::kRun;
}

ParseResult CommandLine::Quiet(std::string_view name, std::string_view value) {
  const std::optional<bool> on = BooleanOf(value);
  if (!on) return Invalid(name);
  settings.isQuiet = *on;
  return ParseResult::kRun;
}

ParseResult CommandLine::Recurse(std::string_view name, std::string_view value) {
  const std::optional<bool> on = BooleanOf(value);
  if (!on) return Invalid(name);
  settings.recurse = *on;
  return ParseResult::kRun;
}

ParseResult CommandLine::Sort(std::string_view name, std::string_view value) {
  if (value == "2" || value == "f" || value == "foldcase") {
    settings.order = Order::kFoldedCase;
    return ParseResult::kRun;
  }
  const std::optional<bool> on = BooleanOf(value);
  if (!on) return Invalid(name);
  settings.order = *on ? Order::kByBytes : Order::kUnsorted;
  return ParseResult::kRun;
}

ParseResult CommandLine::TagRelativeTo(std::string_view name, std::string_view value) {
  if (value == "always") {
    settings.tagRelative = TagRelative::kAlways;
  } else if (value == "never") {
    settings.tagRelative = TagRelative::kNever;
  } else if (const std::optional<bool> on = BooleanOf(value)) {
    settings.tagRelative = *on ? TagRelative::kYes : TagRelative::kNo;
  } else {
    return Invalid(name);
  }
  return ParseResult::kRun;
}

ParseResult CommandLine::Xformat(std::string_view /*name*/, std::string_view value) {
  settings.xformat = value;
  return ParseResult::kRun;
}

}  // namespace vexltags::ctags
