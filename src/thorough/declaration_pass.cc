// SPDX-License-Identifier: MIT
// Prepares the tokens of a C-family file for the parser, declaration by declaration.
#include "thorough/declaration_pass.h"

#include <algorithm>
#include <string_view>

#include "base/character_class.h"
#include "cfamily/main_words.h"
#include "thorough/main_literals.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

bool IsAccess(unsigned type) {
  return type == kMainKw_public || type == kMainKw_protected || type == kMainKw_private;
}

/// True for the last word of a type.
bool EndsType(unsigned type) {
  return type == kMainId || type == kMainGreater || type == kMainStar || type == kMainAmpersand ||
         IsBuiltInType(type);
}

/// True if the declaration that ends with the last word, a semicolon, declares the variable `name`.
/// Nothing before `least` belongs to it.
bool EndsWithDeclarationOf(std::string_view name, const Words& words, std::size_t least) {
  int depth = 0;
  for (std::size_t i = words.size() - 1; i-- > least;) {
    const unsigned type = words[i].type;
    if (type == kMainSemicolon) return false;
    if (type == kMainRParen) ++depth;
    if (type == kMainLParen) --depth;
    if (type != kMainId || words[i].text != name) continue;
    const unsigned after = words[i + 1].type;
    const bool endsHere = after == kMainComma || after == kMainSemicolon || after == kMainLSquare;
    // `int (*a)(int);`
    const bool isPointer =
        i > least && words[i - 1].type == kMainStar && words[i - 2].type == kMainLParen;
    if (depth == 0 ? endsHere : isPointer && (endsHere || after == kMainRParen)) return true;
  }
  return false;
}

/// True for a name whose first part, or all of it, is in capitals: `MAKE_type`.
bool BeginsLikeMacro(std::string_view name) {
  const std::size_t length = std::min(name.find('_'), name.size());
  return length > 1 && std::all_of(name.begin(), name.begin() + static_cast<std::ptrdiff_t>(length),
                                   [](char c) { return (c >= 'A' && c <= 'Z') || IsDigit(c); });
}

/// The types of words that `Take` only appends, unless they begin a line or follow `)`.
constexpr ByteTable<bool> MakePlainTypes() {
  ByteTable<bool> plain{};
  plain.fill(true);
  for (const unsigned type : {static_cast<unsigned>(kMainDefine),
                              static_cast<unsigned>(kMainNsOptionsMacro),
                              static_cast<unsigned>(kMainLCurly),
                              static_cast<unsigned>(kMainRCurly),
                              static_cast<unsigned>(kMainSemicolon),
                              static_cast<unsigned>(kMainColon),
                              static_cast<unsigned>(kMainLParen),
                              static_cast<unsigned>(kMainLSquare),
                              static_cast<unsigned>(kMainRParen),
                              static_cast<unsigned>(kMainRSquare),
                              static_cast<unsigned>(kMainBeginNamespaceStd),
                              static_cast<unsigned>(kMainEndNamespaceStd),
                              static_cast<unsigned>(kMainLibCPPMacroEater),
                              static_cast<unsigned>(kMainInterface),
                              static_cast<unsigned>(kMainProtocol),
                              static_cast<unsigned>(kMainImplementation),
                              static_cast<unsigned>(kMainEnd),
                              static_cast<unsigned>(kMainPlus),
                              static_cast<unsigned>(kMainMinus),
                              kMainProperty,
                              kMainSynthesize}) {
    plain[type] = false;
  }
  return plain;
}
constexpr ByteTable<bool> kPlainTypes = MakePlainTypes();

}  // namespace

DeclarationPass::DeclarationPass(TokenTable& tokens, TokenEdits& edits, Expander& expander,
                                 Dialect dialect)
    : tokens(tokens), edits(edits), expander(expander), dialect(dialect) {}

bool DeclarationPass::Run() {
  const std::size_t count = tokens.Count();
  while (at < count && !missesBlock) {
    const unsigned type = tokens.TypeAt(at);
    if (type == kMainId && expander.MayFind(tokens.SourceAt(at)) && TryMacro()) continue;
    // Most words only lengthen the declaration.
    const unsigned line = tokens.LineAt(at);
    const bool isPlain =
        kPlainTypes[type % kPlainTypes.size()] && madeCurlies == 0 &&
        (words.empty() || (line == words.back().line && words.back().type != kMainRParen));
    if (isPlain) {
      words.push_back({type, tokens.SourceAt(at), line, static_cast<std::int32_t>(at), 1});
      ++at;
      continue;
    }
    if (type == kMainLibCPPMacroEater) {
      if (TryMacro()) continue;
      // It is unknown, so it is left out as any other eaten macro.
      ++at;
      hasChanged = true;
      continue;
    }
    const Word word = SourceWord(at++);
    if (type == kMainDefine) {
      const bool isAlone = words.empty();
      (isAlone ? words : defines).push_back(word);
      SkipDefinition();
      if (isAlone) Flush();
      continue;
    }
    Take(word);
  }
  EndDeclaration(DeclarationEnd::Other);
  return !missesBlock;
}

void DeclarationPass::SkipDefinition() {
  const std::string_view define = tokens.SourceAt(at - 1);
  if (!define.ends_with('\\')) return;
  const std::string_view last = tokens.SourceAt(tokens.Count() - 1);
  const char* const end = last.data() + last.size();
  const char* line = define.data() + define.size();
  while (line < end && line[-1] == '\\') {
    // At a line end that the backslash takes away.
    line += *line == '\r' ? 2 : 1;
    while (line < end && *line != '\n' && *line != '\r') ++line;
  }
  for (; at < tokens.Count() && tokens.SourceAt(at).data() < line; ++at) {
    hasChanged = true;
    NeedToken(at);
  }
}

Word DeclarationPass::SourceWord(std::size_t index) const {
  const unsigned type = tokens.TypeAt(index);
  const bool hasOwnText = type == kMainDefine || type == kMainNsOptionsMacro;
  return {type, hasOwnText ? tokens.TextAt(index) : tokens.SourceAt(index), tokens.LineAt(index),
          static_cast<std::int32_t>(index), 1};
}

void DeclarationPass::Take(const Word& word) {
  if (madeCurlies > 0) {
    // What is in the block does not matter any more.
    hasChanged = true;
    if (word.type == kMainLCurly) ++madeCurlies;
    if (word.type == kMainRCurly && --madeCurlies == 0 && madeBody) {
      EndDeclaration(DeclarationEnd::Body);
    }
    return;
  }
  if ((word.type == kMainId || word.type >= kMainKw_typedef) && EndsObjcHead(word.line)) {
    EndBefore(word);
  }
  if (word.type >= kMainKw_typedef && !words.empty() && words.back().type == kMainRParen &&
      word.line > words.back().line) {
    DropCallsBefore(word);
  }
  switch (word.type) {
    case kMainId:
      // `A() try : a() { } catch (...) { }`
      if (word.text == "try" && !words.empty() && words.back().type == kMainRParen) {
        hasChanged = true;
        return;
      }
      break;
    case kMainLCurly:
      return TakeCurly(word);
    case kMainRCurly:
      return TakeClose(word);
    case kMainSemicolon:
      if (brackets == 1 && IsInCall()) {
        words.erase(words.begin(), words.begin() + 2);
        hasChanged = true;
        ++openCalls;
      }
      words.push_back(word);
      if (inEnum && enumDepth > 0) return;
      if (IsOldStyleHead()) return;
      return EndDeclaration(inEnum ? DeclarationEnd::EnumBody : DeclarationEnd::Semicolon);
    case kMainColon:
      return TakeColon(word);
    case kMainLParen:
      if (SkipHiddenCall(word)) return;
      // `final` and `override` can be names.
      if (words.size() > 1 && brackets == 0 &&
          (words.back().type == kMainKw_final || words.back().type == kMainKw_override) &&
          EndsType(words[words.size() - 2].type)) {
        words.back().type = kMainId;
        hasChanged = true;
      }
      [[fallthrough]];
    case kMainLSquare:
      ++brackets;
      break;
    case kMainRParen:
      if (words.empty() && word.index >= 0 && openCalls > 0) {
        // That of a call with declarations in it.
        --openCalls;
        hasChanged = true;
        return Flush();
      }
      [[fallthrough]];
    case kMainRSquare:
      if (brackets > 0) --brackets;
      break;
    case kMainBeginNamespaceStd:
    case kMainEndNamespaceStd:
      return TakeStdNamespace(word);
    case kMainInterface:
    case kMainProtocol:
    case kMainImplementation:
    case kMainEnd:
    case kMainProperty:
    case kMainSynthesize:
    case kMainPlus:
    case kMainMinus:
      return TakeObjcWord(word);
    default:
      break;
  }
  words.push_back(word);
}

bool DeclarationPass::IsInCall() const {
  if (words.size() < 4 || inEnum) return false;
  const std::string_view name = words[0].text;
  return words[0].type == kMainId && words[1].type == kMainLParen && name != "for" &&
         name != "if" && name != "while" && name != "switch";
}

bool DeclarationPass::SkipHiddenCall(const Word& open) {
  if (open.index < 0 || brackets > 0 || words.empty()) return false;
  const Word& before = words.back();
  if (before.type != kMainRParen || before.index < 0) return false;
  const char* const begin = before.text.data() + before.text.size();
  const char* end = open.text.data();
  while (end > begin && (end[-1] == ' ' || end[-1] == '\t')) --end;
  const char* word = end;
  while (word > begin && kLettersAndDigits[static_cast<unsigned char>(word[-1])]) --word;
  const auto length = static_cast<std::size_t>(end - word);
  if (length == 0 ||
      ClassifyMainWord(reinterpret_cast<const unsigned char*>(word), length) != kMainMaybeMacro) {
    return false;
  }
  int depth = 1;
  for (; at < tokens.Count() && depth > 0; ++at) {
    NeedToken(at);
    if (tokens.TypeAt(at) == kMainLParen) ++depth;
    if (tokens.TypeAt(at) == kMainRParen) --depth;
  }
  hasChanged = true;
  return true;
}

void DeclarationPass::DropCallsBefore(const Word& word) {
  constexpr std::size_t kLongestCalls = 200;
  if (word.index < 0 || brackets > 0 || inEnum || words.size() > kLongestCalls) return;
  bool areMacros = true;
  for (std::size_t i = 0; i < words.size();) {
    if (words[i].type != kMainId || i + 1 == words.size()) return;
    if (LooksLikeMacro(words[i]) && words[i + 1].line > words[i].line) {
      ++i;  // Alone on its line.
      continue;
    }
    if (words[i + 1].type != kMainLParen) return;
    areMacros = areMacros && BeginsLikeMacro(words[i].text);
    i = PastBracket(words, i + 1);
  }
  const unsigned type = word.type;
  const unsigned next = at < tokens.Count() ? tokens.TypeAt(at) : 0;
  const unsigned second = at + 1 < tokens.Count() ? tokens.TypeAt(at + 1) : 0;
  const bool opensNext = next == kMainLCurly || next == kMainColon;
  const bool opensSecond = second == kMainLCurly || second == kMainColon;
  const bool isClass = IsClassKey(type) && (next == kMainLCurly || opensSecond);
  const bool isEnum =
      type == kMainKw_enum && (opensNext || opensSecond || (IsClassKey(next) && second == kMainId));
  const bool isLabel =
      IsAccess(type) && (next == kMainColon || (next == kMainId && second == kMainColon));
  const bool cannotFollow = type == kMainKw_typedef || type == kMainKw_extern ||
                            type == kMainKw_static || type == kMainKw_namespace ||
                            type == kMainKw_template || type == kMainKw_using ||
                            type == kMainKw_explicit || type == kMainKw_virtual ||
                            type == kMainKw_friend || isClass || isEnum || isLabel;
  // What else begins a declaration may be that of an old-style parameter.
  const bool begins = type == kMainKw_const
                          ? next == kMainId || IsBuiltInType(next) || IsClassKey(next)
                          : IsBuiltInType(type) || IsClassKey(type);
  if (!cannotFollow && !(areMacros && begins)) return;
  words.clear();
  hasChanged = true;
  --at;
  Flush();
  ++at;
}

void DeclarationPass::TakeStdNamespace(const Word& word) {
  if (!words.empty()) EndBefore(word);
  words.push_back(word);
  Flush();
  if (word.type == kMainBeginNamespaceStd) {
    scopes.push_back({Level::Namespace, {}, 1, false, true});
  } else if (!scopes.empty()) {
    scopes.pop_back();
  }
}

void DeclarationPass::TakeColon(const Word& word) {
  words.push_back(word);
  // `public:`, `public slots:`
  if (!words.empty() && IsAccess(words[0].type) && words.size() <= 3 && !inEnum) {
    if (words.size() == 3) {
      words.erase(words.begin() + 1);
      hasChanged = true;
    }
    EndDeclaration(DeclarationEnd::Other);
  }
}

void DeclarationPass::TakeObjcWord(const Word& word) {
  const bool isSign = word.type == kMainPlus || word.type == kMainMinus;
  const bool isExpression =
      isSign && !IsObjcHead() &&
      (CurrentLevel() != Level::Objc || brackets > 0 ||
       (!words.empty() && words.back().type != kMainRCurly && word.line == words.back().line));
  if (isExpression) {
    words.push_back(word);
    return;
  }
  // Where an item begins whatever came before has ended: the head of an interface has no other end.
  if (!words.empty()) EndBefore(word);
  const bool inObjc = CurrentLevel() == Level::Objc;
  words.push_back(word);
  if (word.type == kMainEnd) {
    if (inObjc) scopes.pop_back();
    EndDeclaration(DeclarationEnd::Other);
  }
}

bool DeclarationPass::EndsObjcHead(unsigned line) const {
  if (words.size() < 2 || line <= words.back().line) return false;
  const unsigned last = words.back().type;
  return (last == kMainId || last == kMainGreater || last == kMainRParen) && IsObjcHead();
}

bool DeclarationPass::IsObjcHead() const {
  if (words.empty() || brackets > 0) return false;
  const unsigned first = words[0].type;
  return first == kMainInterface || first == kMainProtocol || first == kMainImplementation;
}

void DeclarationPass::EndBefore(const Word& word) {
  // The word has been taken from the source already.
  const bool isSource = word.index >= 0;
  if (isSource) --at;
  EndDeclaration(DeclarationEnd::Other);
  if (isSource) ++at;
}

bool DeclarationPass::IsOldStyleHead() const {
  if (dialect == Dialect::Cxx || CurrentLevel() != Level::Namespace || inEnum) return false;
  // int f(a, b) int a;
  if (words.size() < 6 || words.size() > 200) return false;
  if (words[0].type == kMainKw_typedef || words[0].type == kMainKw_template) return false;
  // Few declarations have a name alone after a parenthesis.
  bool hasLoneName = false;
  for (std::size_t i = 0; i + 2 < words.size() && !hasLoneName; ++i) {
    hasLoneName = words[i].type == kMainLParen && words[i + 1].type == kMainId &&
                  (words[i + 2].type == kMainComma || words[i + 2].type == kMainRParen);
  }
  if (!hasLoneName) return false;
  const Outline outline(words);
  if (outline.params == kNoWord || outline.assign != kNoWord || outline.pointer != kNoWord) {
    return false;
  }
  if (outline.pastParams - outline.params < 3) return false;
  for (std::size_t i = outline.params + 1; i + 1 < outline.pastParams; ++i) {
    const bool isName = (i - outline.params) % 2 == 1;
    if (words[i].type != (isName ? kMainId : kMainComma)) return false;
  }
  const unsigned after = words[outline.pastParams].type;
  const bool beginsType = after == kMainId || IsBuiltInType(after) || IsClassKey(after) ||
                          IsQualifier(after) || after == kMainKw_enum || after == kMainKw_register;
  if (!beginsType || words.size() - outline.pastParams < 3) return false;
  // A macro after a prototype is one word, or a call.
  if (after == kMainId && words[outline.pastParams + 1].type == kMainLParen) return false;
  // `MACRO(a) int f(int);` is no head, since it declares something else.
  const Words::const_iterator begin = words.begin();
  const auto end = [&](std::size_t index) { return begin + static_cast<std::ptrdiff_t>(index); };
  return std::any_of(end(outline.params), end(outline.pastParams), [&](const Word& param) {
    return param.type == kMainId && EndsWithDeclarationOf(param.text, words, outline.pastParams);
  });
}

}  // namespace vexltags::thorough
