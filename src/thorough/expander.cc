// SPDX-License-Identifier: MIT
// Replaces uses of macros by what they expand to.
#include "thorough/expander.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "base/character_class.h"
#include "cfamily/main_words.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

bool HasLowerCase(std::string_view name) {
  return std::any_of(name.begin(), name.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

std::string_view FolderOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash + 1);
}

/// True when one of the folders is in the other, or they are the same.
bool AreNear(std::string_view a, std::string_view b) {
  const std::string_view x = FolderOf(a);
  const std::string_view y = FolderOf(b);
  return x.starts_with(y) || y.starts_with(x);
}

/// The word after `namespace` in a definition's body; empty for none.
std::string_view NamespaceIn(std::string_view body) {
  constexpr std::string_view kWord = "namespace ";
  const std::size_t at = body.find(kWord);
  if (at == std::string_view::npos) return {};
  const std::string_view rest = body.substr(at + kWord.size());
  std::size_t length = 0;
  while (length < rest.size() && kLettersAndDigits[static_cast<unsigned char>(rest[length])]) {
    ++length;
  }
  return rest.substr(0, length);
}

/// How likely a definition is to matter to declarations by its body; greater is likelier.
int BodyRank(const MacroDefinition& definition, const MacroTable& macros) {
  const auto isMark = [](char c) { return c == '{' || c == '}' || c == ';'; };
  if (std::any_of(definition.body.begin(), definition.body.end(), isMark)) {
    // A namespace with the name of a macro that no input defines is one that is switched off.
    const std::string_view name = NamespaceIn(definition.body);
    const bool isOff = !name.empty() && !HasLowerCase(name) && macros.Find(name) == nullptr &&
                       definition.parameters.find(name) == std::string_view::npos;
    return isOff ? 1 : 3;
  }
  if (definition.body.starts_with("static_assert")) return 0;
  if (definition.body.empty() || definition.body.starts_with("__attribute__")) return 2;
  return 1;
}

}  // namespace

bool HasNameOfMacro(std::string_view name) {
  if (!HasLowerCase(name)) return true;
  std::size_t length = 0;
  while (length < name.size() && name[length] >= 'A' && name[length] <= 'Z') ++length;
  return length > 1 && length < name.size() && name[length] == '_';
}

int Expander::RankOf(const MacroDefinition& definition) const {
  constexpr int kUnlikely = 4;
  const bool isUnlikely = macros.ConditionOf(definition, dialect) <= Truth::Unlikely;
  return BodyRank(definition, macros) - (isUnlikely ? kUnlikely : 0);
}

std::pair<Arguments, std::size_t> SplitArguments(std::span<const Word> words, std::size_t from) {
  Arguments arguments;
  std::size_t begin = from;
  int open = 0;
  for (std::size_t i = from; i < words.size(); ++i) {
    const unsigned type = words[i].type;
    if (type == kMainLParen || type == kMainLSquare || type == kMainLCurly) ++open;
    const bool isEnd = type == kMainRParen && open == 0;
    if (isEnd || (type == kMainComma && open == 0)) {
      arguments.push_back(words.subspan(begin, i - begin));
      begin = i + 1;
    }
    if (isEnd) return {std::move(arguments), i - from + 1};
    if (type == kMainRParen || type == kMainRSquare || type == kMainRCurly) --open;
  }
  return {{}, 0};
}

void Expander::BeginFile(std::uint32_t number, const std::vector<std::string>& allPaths) {
  file = number;
  paths = &allPaths;
  dialect = DialectOf(allPaths[number]);
  text = {};
  position = 0;
  texts.clear();
  choices.clear();
  active.clear();
  depth = 0;
  budget = kBudget;
}

const MacroDefinition* Expander::Find(std::string_view name) const {
  const MacroDefinition* known = macros.Find(name);
  if (known == nullptr) return nullptr;
  const auto offset =
      reinterpret_cast<std::uintptr_t>(name.data()) - reinterpret_cast<std::uintptr_t>(text.data());
  if (offset < text.size()) position = static_cast<std::uint32_t>(offset);
  const auto [place, isNew] = choices.try_emplace(known);
  Choice& choice = place->second;
  if (isNew || position < choice.begin || position >= choice.end) choice = Choose(*known, name);
  return choice.best;
}

Expander::Choice Expander::Choose(const MacroDefinition& first, std::string_view name) const {
  constexpr int kLocal = 10;
  const bool isLocal = !HasNameOfMacro(name) && name[0] != '_';
  Choice choice;
  int bestRank = 0;
  for (const MacroDefinition* known = &first; known != nullptr; known = macros.Next(*known)) {
    const bool isOwn = known->file == file;
    if (isOwn && !text.empty()) {
      for (const std::uint32_t edge : {known->begin, known->end}) {
        if (edge <= position) choice.begin = std::max(choice.begin, edge);
        if (edge > position) choice.end = std::min(choice.end, edge);
      }
      if (position < known->begin || position >= known->end) continue;
    }
    if (!isOwn && isLocal && known->file != 0 && paths != nullptr &&
        !AreNear((*paths)[known->file], (*paths)[file])) {
      continue;
    }
    int rank = RankOf(*known);
    // A word of its own, unless the condition holds.
    if (isLocal && rank < 0) continue;
    if (isOwn) rank += kLocal;
    if (choice.best == nullptr || rank > bestRank) {
      choice.best = known;
      bestRank = rank;
    }
  }
  return choice;
}

const MacroDefinition* Expander::ForCall(const MacroDefinition* definition, std::string_view name,
                                         std::size_t count) {
  const auto takes = [this, count](const MacroDefinition& known) {
    const MacroBody& body = bodies.Of(known);
    return body.parameterCount == count || (body.isVariadic && count + 1 >= body.parameterCount) ||
           (count == 1 && body.parameterCount == 0);
  };
  if (definition->next == 0 && macros.Find(name) == definition) return definition;
  if (takes(*definition)) return definition;
  for (const MacroDefinition* known = macros.Find(name); known; known = macros.Next(*known)) {
    if (known->isFunction && known->end == MacroDefinition::kNoEnd && takes(*known)) return known;
  }
  return definition;
}

const MacroDefinition* Expander::KeepingArguments(const MacroDefinition* definition,
                                                  std::string_view name) {
  for (const MacroDefinition* known = macros.Find(name); known; known = macros.Next(*known)) {
    if (!known->isFunction || known->body.empty()) continue;
    const MacroBody& body = bodies.Of(*known);
    if (body.tokens.size() == 1 && body.parameterCount == 1 && body.tokens[0].parameter == 0) {
      return known;
    }
  }
  return definition;
}

bool Expander::IsActive(const MacroDefinition* definition) const {
  return std::find(active.begin(), active.end(), definition) != active.end();
}

bool Expander::Expand(const MacroDefinition& definition, const Arguments& arguments, unsigned line,
                      std::vector<Word>& result) {
  if (active.size() >= kDeepest || depth >= kDeepestCalls) return false;
  ++depth;
  const MacroBody& body = bodies.Of(definition);
  std::vector<Word> words;
  words.reserve(body.tokens.size());
  bool done = Substitute(body, arguments, line, words);
  if (done) {
    active.push_back(&definition);
    const std::size_t size = result.size();
    done = Rescan(words, line, result);
    active.pop_back();
    if (!done) result.resize(size);
  }
  --depth;
  return done;
}

bool Expander::Substitute(const MacroBody& body, const Arguments& arguments, unsigned line,
                          std::vector<Word>& result) {
  // The words of an argument; a variadic parameter takes all remaining ones, with their commas.
  const auto argument = [&](std::int32_t number) -> std::span<const Word> {
    const auto place = static_cast<std::size_t>(number);
    if (place >= arguments.size()) return {};
    if (!body.isVariadic || place + 1 != body.parameterCount) return arguments[place];
    const Word* const end = arguments.back().data() + arguments.back().size();
    return {arguments[place].data(), end};
  };
  const std::vector<BodyToken>& tokens = body.tokens;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const BodyToken& token = tokens[i];
    const bool isPasted = (i + 1 < tokens.size() && tokens[i + 1].type == kMacroPaste) ||
                          (i > 0 && tokens[i - 1].type == kMacroPaste);
    if (token.type == kMacroPaste) {
      // The operator works on the words on its two sides.
      if (i + 1 == tokens.size()) break;
      const BodyToken& right = tokens[++i];
      const Word plain{right.type, right.text, line, -1, 1};
      const bool isPlain = right.parameter < 0;
      if (!SubstitutePasted(isPlain ? std::span(&plain, 1) : argument(right.parameter), line,
                            result)) {
        return false;
      }
    } else if (token.type == kMacroHash && i + 1 < tokens.size() && tokens[i + 1].parameter >= 0) {
      const std::span<const Word> words = argument(tokens[++i].parameter);
      if (!Spend(words.size() + 1)) return false;
      result.push_back(Stringify(words, line));
    } else if (token.parameter >= 0) {
      const std::span<const Word> words = argument(token.parameter);
      if (!Spend(words.size() + 1)) return false;
      if (isPasted) {
        result.insert(result.end(), words.begin(), words.end());
        // An empty operand of `##` leaves the other as it is.
        if (words.empty() && i + 1 < tokens.size() && tokens[i + 1].type == kMacroPaste) {
          ++i;
        }
      } else if (active.size() >= kDeepest || !Rescan(words, line, result)) {
        return false;
      }
    } else if (token.type != kMacroHash) {
      if (!Spend(1)) return false;
      result.push_back({token.type, token.text, line, -1, 1});
    }
  }
  for (Word& word : result) {
    word.line = line;
    word.index = -1;
    word.span = 1;
  }
  return true;
}

/// Appends the right operand of `##` and joins its first word to the last one of `result`.
bool Expander::SubstitutePasted(std::span<const Word> words, unsigned line,
                                std::vector<Word>& result) {
  if (!Spend(words.size() + 1)) return false;
  if (!words.empty() && !result.empty() && result.back().type != kMainComma) {
    result.back() = Paste(result.back(), words[0]);
    words = words.subspan(1);
  } else if (words.empty() && !result.empty() && result.back().type == kMainComma) {
    result.pop_back();  // `, ## __VA_ARGS__` without arguments.
  }
  for (Word word : words) {
    word.line = line;
    word.index = -1;
    result.push_back(word);
  }
  return true;
}

bool Expander::Rescan(std::span<const Word> words, unsigned line, std::vector<Word>& result) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const Word& word = words[i];
    const bool isScope = word.type == kMainLibCPPMacroEater;
    const MacroDefinition* definition = word.type == kMainId || isScope ? Find(word.text) : nullptr;
    if (definition == nullptr || IsActive(definition)) {
      if (!Spend(1)) return false;
      if (isScope) continue;
      result.push_back(word);
      if (word.text == "__LINE__") {
        texts.push_back(std::to_string(line));
        result.back().text = texts.back();
        result.back().type = kMainNumber;
      }
      continue;
    }
    Arguments arguments;
    std::size_t taken = 0;
    if (definition->isFunction) {
      if (i + 1 == words.size() || words[i + 1].type != kMainLParen) {
        result.push_back(word);
        continue;
      }
      std::tie(arguments, taken) = SplitArguments(words, i + 2);
      if (taken == 0) {
        // The search for the end is paid for: it may be repeated at the next word.
        if (!Spend(words.size() - i)) return false;
        result.push_back(word);
        continue;
      }
      ++taken;
      definition = ForCall(definition, word.text, arguments.size());
      if (IsActive(definition)) {
        result.push_back(word);
        continue;
      }
    }
    if (!Spend(taken + 1)) return false;
    if (!Expand(*definition, arguments, line, result)) return false;
    i += taken;
  }
  return true;
}

Word Expander::Paste(const Word& left, const Word& right) {
  constexpr std::size_t kLongest = 4096;
  std::string text(left.text.substr(0, kLongest));
  text += right.text.substr(0, kLongest - text.size());
  budget -= std::min(budget, text.size() / 8);
  texts.push_back(std::move(text));
  Word word = left;
  word.text = texts.back();
  word.type = bodies.TypeOf(word.text);
  return word;
}

Word Expander::Stringify(std::span<const Word> words, unsigned line) {
  std::string text = "\"";
  constexpr std::size_t kLongest = 256;
  for (const Word& word : words) {
    if (text.size() + word.text.size() < kLongest) text += word.text;
  }
  texts.push_back(text + '"');
  return {kMainStringLiteral, texts.back(), line, -1, 1};
}

}  // namespace vexltags::thorough
