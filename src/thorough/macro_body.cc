// SPDX-License-Identifier: MIT
// The body of a macro as tokens.
#include "thorough/macro_body.h"

#include <algorithm>

#include "base/character_class.h"
#include "cfamily/main_scanner.h"
#include "cfamily/main_words.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

/// The names of parameters, in order. A variadic one without a name is `__VA_ARGS__`.
std::vector<std::string_view> ParameterNames(std::string_view text, bool& isVariadic) {
  std::vector<std::string_view> names;
  std::size_t at = 0;
  while (at < text.size()) {
    const char c = text[at];
    if (kLetters[static_cast<unsigned char>(c)]) {
      const std::size_t begin = at;
      while (at < text.size() && kLettersAndDigits[static_cast<unsigned char>(text[at])]) ++at;
      names.push_back(text.substr(begin, at - begin));
    } else if (text.substr(at).starts_with("...")) {
      // `args...` gives the rest a name of its own.
      const bool isNamed = at > 0 && kLettersAndDigits[static_cast<unsigned char>(text[at - 1])];
      if (!isNamed) names.push_back("__VA_ARGS__");
      isVariadic = true;
      at += 3;
    } else {
      ++at;
    }
  }
  return names;
}

/// One past the parenthesis that closes the one at `at`; `at` if none comes first or it stays open.
const unsigned char* SkipParentheses(const unsigned char* at, const unsigned char* end) {
  const unsigned char* const begin = at;
  while (at < end && (*at == ' ' || *at == '\t')) ++at;
  if (at == end || *at != '(') return begin;
  int open = 0;
  for (; at < end; ++at) {
    if (*at == '(') ++open;
    if (*at == ')' && --open == 0) return at + 1;
  }
  return begin;
}

}  // namespace

MacroBodies::MacroBodies() {
  static ANTLR3_UINT8 nothing[] = {0};
  stream.reset(antlr3StringStreamNew(nothing, ANTLR3_ENC_8BIT, 0, nothing));
  if (stream) table = std::make_unique<TokenTable>(stream.get());
}

MacroBodies::~MacroBodies() = default;

const MacroBody& MacroBodies::Of(const MacroDefinition& definition) {
  std::unique_ptr<MacroBody>& body = bodies[&definition];
  if (body) return *body;
  body = std::make_unique<MacroBody>();
  body->isFunction = definition.isFunction;
  const std::vector<std::string_view> names =
      ParameterNames(definition.parameters, body->isVariadic);
  body->parameterCount = names.size();
  if (table && !definition.body.empty()) Read(definition.body, *body);
  for (BodyToken& token : body->tokens) {
    const auto named = std::find(names.begin(), names.end(), token.text);
    if (named != names.end()) token.parameter = static_cast<std::int32_t>(named - names.begin());
  }
  return *body;
}

unsigned MacroBodies::TypeOf(std::string_view text) {
  if (text.empty()) return kMainId;
  const auto* const begin = reinterpret_cast<const unsigned char*>(text.data());
  const unsigned char* const end = begin + text.size();
  if (kLetters[*begin] && EndOfWord(begin, end) == end) {
    const unsigned type = ClassifyMainWord(begin, text.size());
    if (type != kMainMaybeMacro) return type;
  }
  MacroBody body;
  if (table) Read(text, body);
  return body.tokens.empty() ? static_cast<unsigned>(kMainId) : body.tokens[0].type;
}

void MacroBodies::Read(std::string_view text, MacroBody& body) {
  auto* const bytes = reinterpret_cast<ANTLR3_UINT8*>(const_cast<char*>(text.data()));
  static ANTLR3_UINT8 name[] = {0};
  stream->reuse(stream.get(), bytes, static_cast<ANTLR3_UINT32>(text.size()), name);
  table->Reset();
  const auto* const begin = reinterpret_cast<const unsigned char*>(text.data());
  ScanCursor cursor{begin, begin + text.size(), begin, 1, begin, 0};
  std::size_t taken = 0;
  const auto take = [&] {
    for (; taken < table->Count(); ++taken) {
      body.tokens.push_back({table->TypeAt(taken), -1, table->SourceAt(taken)});
    }
  };
  while (cursor.at < cursor.end) {
    ScanMain(cursor, *table);
    take();
    if (cursor.at >= cursor.end) break;
    const unsigned char* const at = cursor.at;
    const std::string_view ahead(reinterpret_cast<const char*>(at),
                                 static_cast<std::size_t>(cursor.end - at));
    if (*at == '#') {
      const std::size_t length = ahead.starts_with("##") ? 2 : 1;
      body.tokens.push_back({length == 2 ? kMacroPaste : kMacroHash, -1, ahead.substr(0, length)});
      cursor.at += length;
    } else if (kLetters[*at]) {
      const unsigned char* const past = EndOfWord(at, cursor.end);
      const std::string_view word = ahead.substr(0, static_cast<std::size_t>(past - at));
      cursor.at = past;
      if (IsLibraryScope(word)) {
        body.tokens.push_back({kMainLibCPPMacroEater, -1, word});
      } else {
        // An annotation that the lexer hides.
        cursor.at = SkipParentheses(past, cursor.end);
      }
    } else if (ahead.starts_with("[[")) {
      const std::size_t close = ahead.find("]]");
      cursor.at = close == std::string_view::npos ? cursor.end : at + close + 2;
    } else if (*at == '"' || *at == '\'') {
      // A literal with an escape that the lexer does not have.
      std::size_t length = 1;
      while (length < ahead.size() && ahead[length] != ahead[0]) {
        length += ahead[length] == '\\' ? 2 : 1;
      }
      length = std::min(length + 1, ahead.size());
      const unsigned type = *at == '"' ? kMainStringLiteral : kMainCharLiteral;
      body.tokens.push_back({type, -1, ahead.substr(0, length)});
      cursor.at += length;
    } else if (ahead.starts_with("//")) {
      cursor.at = cursor.end;
    } else {
      ++cursor.at;
    }
  }
}

}  // namespace vexltags::thorough
