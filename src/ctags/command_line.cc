// SPDX-License-Identifier: MIT
// Parses the arguments of vexltags-ctags, and the files of options.
#include "ctags/command_line.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "ctags/listings.h"
#include "ctags/messages.h"
#include "ctags/text_file.h"

namespace vexltags::ctags {
namespace {

/// Short options with a value, and those without an effect.
constexpr std::string_view kShortWithValue = "DILfho";
constexpr std::string_view kShortIgnored = "BDFGIVhsw";

/// How deeply files of options can name others.
constexpr std::size_t kMostOpenFiles = 16;

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

}  // namespace

ParseResult CommandLine::Parse(const std::vector<std::string>& arguments) {
  if (arguments.empty() || arguments.front() != "--options=NONE") {
    const ParseResult result = ReadUserOptions();
    if (result != ParseResult::kRun) return result;
  }
  return ParseAll(arguments);
}

ParseResult CommandLine::ParseAll(const std::vector<std::string>& arguments) {
  bool optionsEnded = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    ParseResult result = ParseResult::kRun;
    if (optionsEnded || !argument.starts_with('-') || argument == "-") {
      if (!argument.empty()) settings.paths.push_back(argument);
    } else if (argument == "--") {
      optionsEnded = true;
    } else if (argument.starts_with("--")) {
      result = ParseLong(argument);
    } else {
      result = ParseShort(arguments, i);
    }
    if (result != ParseResult::kRun) return result;
  }
  return ParseResult::kRun;
}

ParseResult CommandLine::ParseShort(const std::vector<std::string>& arguments, std::size_t& index) {
  const std::string& argument = arguments[index];
  for (std::size_t i = 1; i < argument.size(); ++i) {
    const char letter = argument[i];
    if (kShortWithValue.find(letter) == std::string_view::npos) {
      const ParseResult result = ApplyShort(letter, {});
      if (result != ParseResult::kRun) return result;
      continue;
    }
    if (i + 1 < argument.size())
      return ApplyShort(letter, std::string_view(argument).substr(i + 1));
    if (index + 1 >= arguments.size()) {
      Report("Missing value of option -" + std::string(1, letter));
      return ParseResult::kFailed;
    }
    return ApplyShort(letter, arguments[++index]);
  }
  return ParseResult::kRun;
}

ParseResult CommandLine::ApplyShort(char letter, std::string_view value) {
  switch (letter) {
    case '?':
      return List("help", {});
    case 'a':
      settings.append = true;
      break;
    case 'e':
      settings.format = Format::kEtags;
      break;
    case 'f':
    case 'o':
      if (value.empty()) return Invalid(std::string(1, letter));
      settings.outputPath = value;
      break;
    case 'L':
      if (value.empty()) return Invalid("L");
      settings.lists.emplace_back(value);
      break;
    case 'N':
      settings.address = Address::kPattern;
      break;
    case 'n':
      settings.address = Address::kLine;
      break;
    case 'R':
      settings.recurse = true;
      break;
    case 'u':
      settings.order = Order::kUnsorted;
      break;
    case 'x':
      settings.format = Format::kXref;
      break;
    default:
      if (kShortIgnored.find(letter) == std::string_view::npos)
        Unknown("-" + std::string(1, letter));
  }
  return ParseResult::kRun;
}

ParseResult CommandLine::ParseLong(std::string_view argument) {
  const std::size_t equals = argument.find('=');
  const std::string_view name =
      argument.substr(2, equals == std::string_view::npos ? std::string_view::npos : equals - 2);
  const bool hasValue = equals != std::string_view::npos;
  const std::string_view value = hasValue ? argument.substr(equals + 1) : std::string_view();
  for (const LongOption* option = kLongOptions; !option->name.empty(); ++option) {
    if (option->name != name) continue;
    if (option->needsValue && !hasValue) {
      Report("Missing value of option --" + std::string(name));
      return ParseResult::kFailed;
    }
    return (this->*option->apply)(name, value);
  }
  return ApplyLanguageOption(name, value);
}

ParseResult CommandLine::ApplyLanguageOption(std::string_view name, std::string_view value) {
  // Options that define parsers, kinds or fields of their own, which there are none of here.
  constexpr std::string_view kIgnored[] = {
      "alias-",  "extradef-", "extras-",   "fielddef-",   "fields-",  "kinddef-", "list-",
      "mline-",  "mtable-",   "param-",    "pseudo-tags", "regex-",   "roledef-", "roles-",
      "_mtable", "_tabledef", "_extradef", "_fielddef",   "_roledef", "_echo",
  };
  for (const std::string_view prefix : kIgnored) {
    if (name.starts_with(prefix)) return ParseResult::kRun;
  }
  if (name.starts_with("map-")) {
    return Langmap("langmap", std::string(name.substr(4)) + ":" + std::string(value));
  }
  std::string_view languageName;
  if (name.starts_with("kinds-")) {
    languageName = name.substr(6);
  } else if (name.ends_with("-kinds") || name.ends_with("-types")) {
    languageName = name.substr(0, name.size() - 6);
  }
  if (languageName == "all") {
    for (const Language& language : Languages()) ApplyKinds(language, value);
    return ParseResult::kRun;
  }
  if (const Language* language = FindLanguage(languageName)) {
    ApplyKinds(*language, value);
  } else if (languageName.empty()) {
    Unknown("--" + std::string(name));
  }
  // Kinds of a language that is not read need no word: option files have them for all languages.
  return ParseResult::kRun;
}

void CommandLine::ApplyKinds(const Language& language, std::string_view value) {
  // Callers name all kinds of a language that they know. The ones that never occur are not
  // reported.
  settings.kinds[IndexOf(language)].Apply(value);
}

ParseResult CommandLine::ReadOptions(const std::string& path, bool mustExist) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) {
    std::vector<std::string> files;
    for (std::filesystem::directory_iterator it(path, error), end; !error && it != end;
         it.increment(error)) {
      if (it->path().extension() == ".ctags") files.push_back(it->path());
    }
    std::sort(files.begin(), files.end());
    for (const std::string& file : files) {
      const ParseResult result = ReadOptions(file, true);
      if (result != ParseResult::kRun) return result;
    }
    return ParseResult::kRun;
  }
  std::vector<std::string> arguments;
  if (const int reason = ReadLines(path, arguments); reason != 0) {
    if (!mustExist && reason == ENOENT) return ParseResult::kRun;
    Report("cannot open option file " + Quoted(path) + " : " + std::strerror(reason));
    return ParseResult::kFailed;
  }
  const std::string real = std::filesystem::weakly_canonical(path, error);
  if (std::ranges::find(openFiles, real) != openFiles.end()) {
    Report("option file " + Quoted(path) + " includes itself");
    return ParseResult::kFailed;
  }
  if (openFiles.size() >= kMostOpenFiles) {
    Report("option file " + Quoted(path) + " is nested too deeply");
    return ParseResult::kFailed;
  }
  for (std::string& line : arguments) {
    line.erase(0, std::min(line.find_first_not_of(" \t"), line.size()));
    while (line.ends_with('\r') || line.ends_with(' ')) line.pop_back();
  }
  std::erase_if(arguments,
                [](const std::string& line) { return line.empty() || line.starts_with('#'); });
  openFiles.push_back(real);
  const ParseResult result = ParseAll(arguments);
  openFiles.pop_back();
  return result;
}

ParseResult CommandLine::ReadUserOptions() {
  const char* home = std::getenv("HOME");
  const char* config = std::getenv("XDG_CONFIG_HOME");
  std::vector<std::string> folders;
  if (config != nullptr && *config != '\0') {
    folders.push_back(std::string(config) + "/ctags");
  } else if (home != nullptr && *home != '\0') {
    folders.push_back(std::string(home) + "/.config/ctags");
  }
  if (home != nullptr && *home != '\0') folders.push_back(std::string(home) + "/.ctags.d");
  folders.insert(folders.end(), {".ctags.d", "ctags.d"});
  std::set<std::string> seen;
  for (const std::string& folder : folders) {
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error)) continue;
    // In the home directory, two of them are the same.
    if (!seen.insert(std::filesystem::weakly_canonical(folder, error)).second) continue;
    const ParseResult result = ReadOptions(folder, true);
    if (result != ParseResult::kRun) return result;
  }
  return ParseResult::kRun;
}

void CommandLine::Unknown(const std::string& option) {
  if (!settings.isQuiet && reported.insert(option).second) Warn("Unknown option: " + option);
}

void CommandLine::ReportChoices(const std::vector<std::string>& unknown, std::string_view option) {
  for (const std::string& choice : unknown) {
    const std::string text =
        "Unsupported parameter '" + choice + "' for " + Quoted(option) + " option";
    if (!settings.isQuiet && reported.insert(text).second) Warn(text);
  }
}

ParseResult CommandLine::Invalid(std::string_view name) {
  Report("Invalid value for " + Quoted(name) + " option");
  return ParseResult::kFailed;
}

}  // namespace vexltags::ctags
