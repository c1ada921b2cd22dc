// SPDX-License-Identifier: MIT
// Rewrites a declaration so that the grammar of the C family can read it.
#include "thorough/declaration_repair.h"

#include <algorithm>

#include "thorough/main_literals.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

bool IsSpecifier(unsigned type) {
  switch (type) {
    case kMainKw_static:
    case kMainKw_inline:
    case kMainKw_virtual:
    case kMainKw_explicit:
    case kMainKw_extern:
    case kMainKw_mutable:
    case kMainKw_constexpr:
    case kMainKw_consteval:
    case kMainKw_constinit:
    case kMainKw_thread_local:
    case kMainKw_friend:
    case kMainKw_typedef:
    case kMainKw_register:
      return true;
    default:
      return false;
  }
}

/// Words that begin the name of a type.
bool BeginsType(unsigned type) {
  return type == kMainId || IsBuiltInType(type) || IsClassKey(type) || type == kMainKw_enum ||
         type == kMainKw_const || type == kMainKw_volatile || type == kMainKw_typename ||
         type == kMainKw_auto || type == kMainKw_decltype || type == kMainScope;
}

class Repair {
 public:
  Repair(Words& words, DeclarationEnd end, const DeclarationPlace& place)
      : words(words), end(end), place(place) {}

  bool Run() {
    if (words.empty()) return false;
    if (place.dialect == Dialect::C) RetypeNames();
    const unsigned first = words[0].type;
    if (first == kMainRCurly) {
      RepairTail();
    } else if (first == kMainPlus || first == kMainMinus) {
      RepairMethod();
    } else if (first == kMainProperty) {
      RepairProperty();
    } else if (first == kMainInterface || first == kMainImplementation || first == kMainProtocol) {
      RepairObjcHead();
    } else if (first == kMainKw_static_assert || first == kMainSynthesize) {
      return false;
    } else if (first == kMainKw_using) {
      RepairUsing();
    } else if (end == DeclarationEnd::EnumBody) {
      RepairEnum();
    } else if (end == DeclarationEnd::NamespaceBody) {
      RepairNamespace();
    } else if (end == DeclarationEnd::ClassBody) {
      RepairClass();
    } else {
      RepairPlain();
    }
    return changed;
  }

 private:
  // Steps ---------------------------------------------------------------------------------------

  void Erase(std::size_t from, std::size_t to) {
    if (from >= to) return;
    words.erase(words.begin() + static_cast<std::ptrdiff_t>(from),
                words.begin() + static_cast<std::ptrdiff_t>(to));
    changed = true;
  }
  void Retype(std::size_t at, unsigned type) {
    words[at].type = type;
    changed = true;
  }
  void Insert(std::size_t at, unsigned type, std::string_view text) {
    Word word;
    word.type = type;
    word.text = text;
    word.line = words[std::min(at, words.size() - 1)].line;
    words.insert(words.begin() + static_cast<std::ptrdiff_t>(at), word);
    changed = true;
  }
  unsigned TypeAt(std::size_t at) const { return at < words.size() ? words[at].type : 0; }

  // Classes, namespaces, enums --------------------------------------------------------------------

  /// Leaves one name between the words at `key` and `stop`: the last that does not look like a
  /// macro, or else the last. Returns its end.
  std::size_t KeepOneName(std::size_t key, std::size_t stop) {
    struct Name {
      std::size_t begin, end;
      bool isMacro;
    };
    Name best{key + 1, key + 1, true};
    std::size_t i = key + 1;
    bool hasFinal = false;
    while (i < stop) {
      if (TypeAt(i) == kMainKw_final) hasFinal = true;
      const bool begins =
          TypeAt(i) == kMainId || (TypeAt(i) == kMainScope && TypeAt(i + 1) == kMainId);
      if (!begins) {
        i = TypeAt(i) == kMainLParen ? std::min(PastBracket(words, i), stop) : i + 1;
        continue;
      }
      Name name{i, i, LooksLikeMacro(words[i])};
      if (TypeAt(i) == kMainScope) ++i;
      for (;;) {
        ++i;
        if (i < stop && TypeAt(i) == kMainLess) {
          const std::size_t past = PastAngle(words, i);
          if (past != i && past <= stop) {
            i = past;
            name.isMacro = false;
          }
        }
        if (i + 1 < stop && TypeAt(i) == kMainScope && TypeAt(i + 1) == kMainId) {
          ++i;
          name.isMacro = false;
          continue;
        }
        break;
      }
      name.end = i;
      // The name of a macro with arguments.
      if (i < stop && TypeAt(i) == kMainLParen) {
        i = std::min(PastBracket(words, i), stop);
        continue;
      }
      if (best.begin == best.end || !name.isMacro || best.isMacro) best = name;
    }
    if (best.begin == best.end) {
      Erase(key + 1, stop);
      return key + 1;
    }
    Erase(best.end, stop);
    if (hasFinal) Insert(best.end, kMainKw_final, "final");
    const std::size_t length = best.end - best.begin + (hasFinal ? 1 : 0);
    Erase(key + 1, best.begin);
    if (TypeAt(key + 1) == kMainScope) {
      Erase(key + 1, key + 2);
      return key + length;
    }
    return key + 1 + length;
  }

  void RepairClass() {
    RemoveMacrosBefore();
    RemoveTemplateDefaults();
    Outline outline(words);
    if (outline.classKey == kNoWord) return;
    // `static struct X {`, `const struct {`: the grammar opens a class by its key, after `typedef`.
    std::size_t from = outline.begin;
    while (from < outline.classKey) {
      if (TypeAt(from) == kMainKw_typedef || TypeAt(from) == kMainKw_const ||
          TypeAt(from) == kMainKw_friend || TypeAt(from) == kMainKw_volatile) {
        ++from;
      } else {
        Erase(from, from + 1);
        --outline.classKey;
      }
    }
    const std::size_t key = outline.classKey;
    std::size_t stop = key + 1;
    while (stop < words.size() && TypeAt(stop) != kMainColon && TypeAt(stop) != kMainLCurly) {
      const unsigned type = TypeAt(stop);
      if (type == kMainLParen) {
        stop = PastBracket(words, stop);
      } else if (type == kMainLess) {
        stop = std::max(PastAngle(words, stop), stop + 1);
      } else {
        ++stop;
      }
    }
    stop = std::min(stop, words.size());
    const std::size_t pastName = KeepOneName(key, stop);
    // The bases leave no trace in a tag.
    if (TypeAt(pastName) == kMainColon) Erase(pastName, words.size() - 1);
  }

  void RepairNamespace() {
    const auto key = std::find_if(words.begin(), words.end(),
                                  [](const Word& word) { return word.type == kMainKw_namespace; });
    if (key == words.end()) return;  // A linkage block.
    auto at = static_cast<std::size_t>(key - words.begin());
    // What is before it, but for `inline`.
    std::size_t i = 0;
    while (i < at) {
      if (TypeAt(i) == kMainKw_inline) {
        ++i;
      } else {
        Erase(i, i + 1);
        --at;
      }
    }
    // `a::inline b`, then one name and nothing else.
    std::size_t stop = at + 1;
    while (TypeAt(stop) == kMainId || TypeAt(stop) == kMainScope ||
           TypeAt(stop) == kMainKw_inline) {
      if (stop > at + 1 && TypeAt(stop) == kMainId && TypeAt(stop - 1) == kMainId) break;
      ++stop;
    }
    if (TypeAt(stop) == kMainLParen && stop > at + 1 && LooksLikeMacro(words[stop - 1])) --stop;
    std::size_t last = words.size() - 1;
    // `namespace MACRO name {`
    if (stop == at + 2 && TypeAt(stop) == kMainId && LooksLikeMacro(words[at + 1]) &&
        !LooksLikeMacro(words[stop])) {
      Erase(at + 1, at + 2);
      --last;
    }
    Erase(stop, last);
  }

  void RepairEnum() {
    std::size_t key = 0;
    while (key < words.size() && TypeAt(key) != kMainKw_enum &&
           TypeAt(key) != kMainNsOptionsMacro) {
      ++key;
    }
    if (key == words.size()) return;
    // The grammar has `typedef` before an enum, and nothing else.
    std::size_t i = 0;
    while (i < key) {
      if (TypeAt(i) == kMainKw_typedef) {
        ++i;
      } else {
        Erase(i, i + 1);
        --key;
      }
    }
    std::size_t open = key;
    while (open < words.size() && TypeAt(open) != kMainLCurly) ++open;
    if (open == words.size()) return;
    if (TypeAt(key) == kMainKw_enum) {
      std::size_t name = key;
      if (TypeAt(key + 1) == kMainKw_class || TypeAt(key + 1) == kMainKw_struct) ++name;
      std::size_t colon = name + 1;
      while (colon < open && TypeAt(colon) != kMainColon) {
        colon =
            TypeAt(colon) == kMainLParen ? std::min(PastBracket(words, colon), open) : colon + 1;
      }
      Erase(colon, open);  // The type below has no place in a tag.
      const std::size_t pastName = KeepOneName(name, colon);
      // A qualified name: the last of its words.
      while (pastName - name > 2 && TypeAt(name + 2) == kMainScope) {
        open = name;  // Recomputed below.
        Erase(name + 1, name + 3);
        break;
      }
      open = name;
      while (open < words.size() && TypeAt(open) != kMainLCurly) ++open;
    } else {
      Erase(key + 1, open);
      open = key + 1;
    }
    RepairEnumerators(open);
  }

  /// From the `{` at `open`: each enumerator becomes its name and a comma.
  void RepairEnumerators(std::size_t open) {
    Words kept(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(open) + 1);
    std::size_t i = open + 1;
    while (i < words.size() && TypeAt(i) != kMainRCurly) {
      // One enumerator: its first name that is not a macro with others after it.
      std::size_t name = kNoWord;
      bool hasValue = false;
      bool isCall = false;
      while (i < words.size() && TypeAt(i) != kMainComma && TypeAt(i) != kMainRCurly) {
        const unsigned type = TypeAt(i);
        if (type == kMainAssign) hasValue = true;
        if (type == kMainId && !hasValue && (name == kNoWord || isCall)) {
          name = i;
          isCall = TypeAt(i + 1) == kMainLParen;
        }
        if (type == kMainLParen || type == kMainLSquare) {
          i = PastBracket(words, i);
        } else if (type == kMainLess && hasValue && TypeAt(i - 1) == kMainId) {
          i = std::max(PastAngle(words, i), i + 1);
        } else {
          ++i;
        }
      }
      if (name != kNoWord && !isCall) {
        kept.push_back(words[name]);
        if (TypeAt(i) == kMainComma) kept.push_back(words[i]);
      }
      if (TypeAt(i) == kMainComma) ++i;
    }
    const std::size_t close = i;
    if (close < words.size()) kept.push_back(words[close]);
    RepairEnumTail(close + 1, kept);
    if (kept.size() != words.size()) {
      words = std::move(kept);
      changed = true;
    }
  }

  /// What follows the `}` of an enum: the grammar reads one plain name there. Others become
  /// declarations of their own.
  void RepairEnumTail(std::size_t from, Words& kept) {
    bool isFirst = true;
    bool isTypedef = words[0].type == kMainKw_typedef;
    for (std::size_t i = from; i < words.size();) {
      std::size_t name = kNoWord;
      bool hasValue = false;
      while (i < words.size() && TypeAt(i) != kMainComma && TypeAt(i) != kMainSemicolon) {
        const unsigned type = TypeAt(i);
        if (type == kMainAssign) hasValue = true;
        if (type == kMainId && !hasValue && (name == kNoWord || LooksLikeMacro(words[name]))) {
          if (TypeAt(i + 1) != kMainLParen) name = i;
        }
        i = type == kMainLParen || type == kMainLSquare ? PastBracket(words, i) : i + 1;
      }
      if (name != kNoWord) {
        // The name after a typedef shows the enum; any other is a variable like others.
        if (!isFirst || !isTypedef) {
          Word semicolon = words[name];
          semicolon.type = kMainSemicolon;
          semicolon.text = ";";
          semicolon.index = -1;
          kept.push_back(semicolon);
          Word type = semicolon;
          if (isTypedef) {
            type.type = kMainKw_typedef;
            type.text = "typedef";
            kept.push_back(type);
          }
          type.type = kMainKw_int;
          type.text = "int";
          kept.push_back(type);
          changed = true;
        }
        kept.push_back(words[name]);
        isFirst = false;
      }
      if (TypeAt(i) == kMainSemicolon) kept.push_back(words[i]);
      ++i;
    }
  }

  // Objective-C -----------------------------------------------------------------------------------

  /// The types of a method leave no trace in its tag.
  void RepairMethod() {
    for (std::size_t i = 1; i < words.size();) {
      if (TypeAt(i) == kMainLParen) {
        Erase(i, PastBracket(words, i));
      } else {
        ++i;
      }
    }
    // The words of the selector; C++ words as names of parameters, and macros after the last one.
    std::size_t last = words.size() - 1;
    bool hasColon = false;
    for (std::size_t i = 1; i < last;) {
      const unsigned type = TypeAt(i);
      if (type == kMainColon) {
        hasColon = true;
        if (TypeAt(i + 1) != kMainId && TypeAt(i + 1) >= kMainKw_typedef) Retype(i + 1, kMainId);
        // `:name` has one word; a second one without a colon is a macro.
        i += 2;
        continue;
      }
      if (hasColon && TypeAt(i) == kMainId && TypeAt(i + 1) != kMainColon) {
        Erase(i, i + 1);
        --last;
        continue;
      }
      if (!hasColon && i > 1 && type == kMainId && TypeAt(i + 1) != kMainColon) {
        Erase(i, i + 1);
        --last;
        continue;
      }
      ++i;
    }
    // `- (void)foo; {` and the like stay as they are.
  }

  void RepairProperty() {
    std::size_t i = 1;
    Words kept;
    kept.push_back(words[0]);
    if (TypeAt(i) == kMainLParen) {
      const std::size_t past = PastBracket(words, i);
      KeepAttributes(i + 1, past - 1, kept);
      i = past;
    }
    // The name: in the parentheses of a function pointer or block, else the last word.
    std::size_t name = kNoWord;
    for (std::size_t at = i; at < words.size(); ++at) {
      if (TypeAt(at) == kMainLParen &&
          (TypeAt(at + 1) == kMainBitwiseXor || TypeAt(at + 1) == kMainStar)) {
        const std::size_t past = PastBracket(words, at);
        for (std::size_t in = at + 1; in < past; ++in) {
          if (TypeAt(in) == kMainId) name = in;
        }
        break;
      }
      if (TypeAt(at) == kMainLParen) {
        at = PastBracket(words, at) - 1;
        continue;
      }
      if (TypeAt(at) == kMainLess) {
        const std::size_t past = PastAngle(words, at);
        if (past != at) {
          at = past - 1;
          continue;
        }
      }
      const bool isWord = TypeAt(at) == kMainId || TypeAt(at) >= kMainKw_typedef;
      if (!isWord || IsBuiltInType(TypeAt(at)) || IsQualifier(TypeAt(at))) continue;
      // Macros follow the name.
      if (name != kNoWord && LooksLikeMacro(words[at]) && !LooksLikeMacro(words[name])) continue;
      name = at;
    }
    if (name == kNoWord || TypeAt(words.size() - 1) != kMainSemicolon) return;
    Word type = words[name];
    type.type = kMainKw_int;
    type.text = "int";
    type.index = -1;
    kept.push_back(type);
    kept.push_back(words[name]);
    kept.back().type = kMainId;
    kept.push_back(words.back());
    words = std::move(kept);
    changed = true;
  }

  /// `readonly`, `getter=x` and `setter=x:` decide which tags a property has.
  void KeepAttributes(std::size_t from, std::size_t to, Words& kept) {
    Words attributes;
    for (std::size_t i = from; i < to; ++i) {
      const bool isAccessor = TypeAt(i) == kMainId &&
                              (words[i].text == "getter" || words[i].text == "setter") &&
                              TypeAt(i + 1) == kMainAssign;
      if (TypeAt(i) == kMainKw_readonly) {
        Append(attributes, {words[i]});
      } else if ((TypeAt(i) == kMainGetter || TypeAt(i) == kMainSetter) && i + 1 < to) {
        Word name = words[i + 1];
        name.type = kMainId;
        Append(attributes, {words[i], name});
        ++i;
      } else if (isAccessor && i + 2 < to) {
        Word accessor = words[i];
        accessor.type = words[i].text == "getter" ? kMainGetter : kMainSetter;
        Word name = words[i + 2];
        name.type = kMainId;
        Append(attributes, {accessor, name});
        i += 2;
      }
    }
    if (attributes.empty()) return;
    kept.push_back(words[from - 1]);
    kept.insert(kept.end(), attributes.begin(), attributes.end());
    kept.push_back(words[to]);
  }
  static void Append(Words& attributes, std::initializer_list<Word> added) {
    if (!attributes.empty()) {
      Word comma = attributes.back();
      comma.type = kMainComma;
      comma.text = ",";
      comma.index = -1;
      attributes.push_back(comma);
    }
    attributes.insert(attributes.end(), added);
  }

  /// `@interface Name : Base <P> {`: the name and the category are all that a tag shows.
  void RepairObjcHead() {
    if (TypeAt(words.size() - 1) == kMainSemicolon) return;
    std::size_t i = 1;
    if (TypeAt(i) != kMainId) {
      if (TypeAt(i) < kMainKw_typedef) return;
      Retype(i, kMainId);
    }
    // Macros before the name.
    while (TypeAt(i + 1) == kMainId && LooksLikeMacro(words[i])) Erase(i, i + 1);
    ++i;
    if (TypeAt(i) == kMainLess) Erase(i, std::max(PastAngle(words, i), i + 1));
    if (TypeAt(i) == kMainLParen) {
      const std::size_t past = PastBracket(words, i);
      if (TypeAt(i + 1) == kMainId && past - i > 3) {
        Erase(i + 2, past - 1);
        i += 3;
      } else {
        i = past;
      }
    }
    Erase(i, words.size());
  }

  // Everything else -------------------------------------------------------------------------------

  void RepairUsing() {
    RemoveLeadingScopes();
    const Outline outline(words);
    const std::size_t assign = outline.assign;
    if (assign == kNoWord || outline.begin + 2 > assign) return;
    // Macros between the name and the `=`.
    if (assign > outline.begin + 2) {
      Erase(outline.begin + 2, assign);
      return RepairUsing();
    }
    // Only a type with a class key shows in the tag of an alias.
    if (outline.classKey != kNoWord && outline.classKey == assign + 1) return;
    const std::size_t last = words.size() - 1;
    if (TypeAt(last) != kMainSemicolon || last <= assign + 1) return;
    Erase(assign + 1, last);
    Insert(assign + 1, kMainKw_int, "int");
    EmptyTemplateHeads();
  }

  /// The parameters of a template show in the names of classes and concepts only.
  void EmptyTemplateHeads() {
    std::size_t i = 0;
    while (TypeAt(i) == kMainKw_template && TypeAt(i + 1) == kMainLess) {
      const std::size_t past = PastAngle(words, i + 1);
      if (past == i + 1) return;
      Erase(i + 2, past - 1);
      i += 3;
    }
    RemoveConstraint(i);
  }

  /// The constraint of a template, from `from` on where its head has ended.
  void RemoveConstraint(std::size_t from) {
    if (from > 0 && TypeAt(from) == kMainKw_requires) Erase(from, Outline(words).begin);
  }

  /// Default arguments of a template's parameters, which may be any expression.
  void RemoveTemplateDefaults() {
    for (std::size_t i = 0; TypeAt(i) == kMainKw_template && TypeAt(i + 1) == kMainLess;) {
      std::size_t past = PastAngle(words, i + 1);
      if (past == i + 1) return;
      for (std::size_t at = i + 2; at + 1 < past;) {
        const unsigned type = TypeAt(at);
        if (type == kMainLParen || type == kMainLSquare) {
          at = PastBracket(words, at);
        } else if (type == kMainLess) {
          at = std::max(PastAngle(words, at), at + 1);
        } else if (type == kMainAssign) {
          std::size_t stop = at + 1;
          while (stop + 1 < past && TypeAt(stop) != kMainComma) {
            const unsigned inside = TypeAt(stop);
            if (inside == kMainLParen || inside == kMainLSquare) {
              stop = PastBracket(words, stop);
            } else if (inside == kMainLess && TypeAt(stop - 1) == kMainId) {
              stop = std::max(PastAngle(words, stop), stop + 1);
            } else {
              ++stop;
            }
          }
          stop = std::min(stop, past - 1);
          Erase(at, stop);
          past -= stop - at;
        } else {
          ++at;
        }
      }
      i = past;
      if (TypeAt(i) == kMainKw_requires) RemoveConstraint(i);
    }
  }

  /// `} name;` after a class.
  void RepairTail() {
    CutInitializer(1);
    RemoveLeadingScopes();
    // A macro with arguments.
    while (TypeAt(1) == kMainId && TypeAt(2) == kMainLParen) Erase(1, PastBracket(words, 2));
    // `} __attribute__((...)) const name;`
    while (TypeAt(1) == kMainKw_const || TypeAt(1) == kMainKw_volatile ||
           TypeAt(1) == kMainKw_static || TypeAt(1) == kMainKw_inline ||
           TypeAt(1) == kMainKw_constexpr) {
      Erase(1, 2);
    }
    // Words that look like macros between the brace and the first name.
    while (words.size() > 3 && LooksLikeMacro(words[1]) &&
           (TypeAt(2) == kMainId || TypeAt(2) == kMainStar)) {
      Erase(1, 2);
    }
    // A macro after the last name.
    while (words.size() > 3 && TypeAt(words.size() - 1) == kMainSemicolon &&
           LooksLikeMacro(words[words.size() - 2]) && TypeAt(words.size() - 3) == kMainId) {
      Erase(words.size() - 2, words.size() - 1);
    }
  }

  void RepairPlain() {
    // An explicit instantiation declares nothing new.
    const bool isExtern = TypeAt(0) == kMainKw_extern && TypeAt(1) == kMainKw_template;
    if (isExtern || (TypeAt(0) == kMainKw_template && TypeAt(1) != kMainLess)) {
      return Erase(0, words.size());
    }
    if (place.dialect != Dialect::C) RetypeNames();
    RemoveMacrosBefore();
    RemoveLeadingScopes();
    if (words.empty()) return;
    Outline outline(words);
    // A class template that is not defined here.
    if (outline.begin > 0 && outline.classKey == outline.begin && outline.params == kNoWord &&
        outline.assign == kNoWord && end == DeclarationEnd::Semicolon) {
      return Erase(0, words.size());
    }
    if (IsMacroCall(outline)) {
      Erase(0, words.size());
      return;
    }
    if (TypeAt(outline.begin) == kMainKw_using) return RepairUsing();
    if (IsFunction(outline)) {
      RepairFunction(outline);
      EmptyTemplateHeads();
    } else {
      RepairVariable(outline);
    }
    RemoveEnumWords();
    RetypeAuto();
  }

  /// Words of C++ as names in C, and where only a name can be.
  void RetypeNames() {
    for (std::size_t i = 0; i < words.size(); ++i) {
      const unsigned type = TypeAt(i);
      const bool isCxxWord =
          type == kMainKw_class || type == kMainKw_new || type == kMainKw_delete ||
          type == kMainKw_template || type == kMainKw_namespace || type == kMainKw_operator ||
          type == kMainKw_private || type == kMainKw_public || type == kMainKw_protected ||
          type == kMainKw_virtual || type == kMainKw_typename || type == kMainKw_using ||
          type == kMainKw_friend || type == kMainKw_explicit || type == kMainKw_mutable ||
          type == kMainKw_final || type == kMainKw_override || type == kMainKw_concept ||
          type == kMainKw_requires || type == kMainKw_throw || type == kMainKw_default ||
          type == kMainKw_readonly || type == kMainKw_true || type == kMainKw_false;
      if (!isCxxWord) continue;
      if (place.dialect == Dialect::C && !place.inObjc) {
        if (i > 0) Retype(i, kMainId);
        continue;
      }
      if (type != kMainKw_class && type != kMainKw_new && type != kMainKw_delete &&
          type != kMainKw_template && type != kMainKw_namespace && type != kMainKw_private &&
          type != kMainKw_public && type != kMainKw_virtual && type != kMainKw_typename) {
        continue;
      }
      const unsigned before = i > 0 ? TypeAt(i - 1) : 0;
      const unsigned after = TypeAt(i + 1);
      const bool endsName = after == kMainSemicolon || after == kMainComma ||
                            after == kMainRParen || after == kMainLSquare;
      const bool followsType = before == kMainId || before == kMainStar || IsBuiltInType(before);
      if (endsName && followsType) Retype(i, kMainId);
    }
  }

  /// Macros that nobody has defined, at the beginning of a declaration: `API_EXPORT int f();`
  void RemoveMacrosBefore() {
    std::size_t i = 0;
    if (TypeAt(0) == kMainKw_template) i = Outline(words).begin;
    RemoveMacroLines(i);
    RemoveMadeTemplateHead();
    // A call of one, followed by the rest of a declaration.
    for (;;) {
      while (IsSpecifier(TypeAt(i)) || TypeAt(i) == kMainKw_const) ++i;
      if (TypeAt(i) == kMainId && TypeAt(i + 1) == kMainLParen) {
        const std::size_t past = PastBracket(words, i + 1);
        const unsigned after = TypeAt(past);
        // A macro that makes a type.
        if (after == kMainStar ||
            (after == kMainId && !LooksLikeMacro(words[past]) && !LooksLikeMacro(words[i]))) {
          Erase(i + 1, past);
          break;
        }
        if (!LooksLikeMacro(words[i])) break;
        const bool goesOn =
            (BeginsType(after) && after != kMainKw_const && after != kMainKw_volatile) ||
            IsSpecifier(after) || after == kMainTilde;
        if (!goesOn) break;
        Erase(i, past);
        continue;
      }
      if (TypeAt(i) != kMainId) break;
      // A name directly before a word that cannot follow the name of a type.
      const unsigned after = TypeAt(i + 1);
      if (BeginsDeclaration(after) && after != kMainKw_constexpr) {
        Erase(i, i + 1);
        continue;
      }
      if ((after == kMainKw_const || after == kMainKw_volatile) && LooksLikeMacro(words[i]) &&
          BeginsType(TypeAt(i + 2)) && BeginsType(TypeAt(i + 3))) {
        Erase(i, i + 1);
        continue;
      }
      break;
    }
    RemoveThirdNames(i);
  }

  /// True for a word that can follow a macro at the beginning of a declaration, but not the name of
  /// a type.
  static bool BeginsDeclaration(unsigned type) {
    return IsBuiltInType(type) || IsSpecifier(type) || IsClassKey(type) || type == kMainKw_enum ||
           type == kMainKw_typename || type == kMainKw_auto || type == kMainKw_namespace ||
           type == kMainKw_using || type == kMainTilde || type == kMainKw_template ||
           type == kMainKw_decltype;
  }

  /// `template(typename T)(requires X<T>)` and `MAKE_TEMPLATE(typename T)(requires X<T>)`, which
  /// some libraries have in place of a template head.
  void RemoveMadeTemplateHead() {
    if ((TypeAt(0) != kMainKw_template && TypeAt(0) != kMainId) || TypeAt(1) != kMainLParen) return;
    std::size_t past = PastBracket(words, 1);
    if (TypeAt(past) != kMainLParen) return;
    past = PastBracket(words, past);
    const unsigned after = TypeAt(past);
    const bool hasTypes = TypeAt(2) == kMainKw_typename || TypeAt(2) == kMainKw_class;
    if (hasTypes && (BeginsType(after) || BeginsDeclaration(after))) Erase(0, past);
  }

  /// Macros at `at` that are lines of their own, or several before a word that begins a
  /// declaration.
  void RemoveMacroLines(std::size_t at) {
    while (at + 1 < words.size() && LooksLikeMacro(words[at]) &&
           words[at + 1].line > words[at].line && TypeAt(at + 1) != kMainLParen &&
           !(TypeAt(at + 1) == kMainId && TypeAt(at + 2) == kMainLParen) &&
           TypeAt(at + 1) != kMainStar && TypeAt(at + 1) != kMainSemicolon) {
      Erase(at, at + 1);
    }
    std::size_t past = at;
    while (past < words.size() && LooksLikeMacro(words[past])) ++past;
    if (past > at + 1 && BeginsDeclaration(TypeAt(past))) Erase(at, past);
  }

  /// Of three names in a row, from `from` on, the one that is no type and no name.
  void RemoveThirdNames(std::size_t from) {
    std::size_t i = from;
    while (i < words.size()) {
      const unsigned type = TypeAt(i);
      if (type == kMainLParen || type == kMainAssign || type == kMainSemicolon ||
          type == kMainLCurly || type == kMainKw_operator || type == kMainColon ||
          type == kMainComma) {
        return;
      }
      if (type == kMainLess && i > 0 && TypeAt(i - 1) == kMainId) {
        i = std::max(PastAngle(words, i), i + 1);
        continue;
      }
      const bool isPair = type == kMainId && TypeAt(i + 1) == kMainId;
      if (!isPair) {
        ++i;
        continue;
      }
      // `a b c`, `int a b`, `a* b c`, `a b ::c`: one of a and b is a macro.
      const unsigned before = i > 0 ? TypeAt(i - 1) : 0;
      const bool hasTypeBefore =
          i > from && (IsBuiltInType(before) || before == kMainStar || before == kMainAmpersand ||
                       before == kMainGreater || before == kMainAnd);
      const bool hasThird =
          TypeAt(i + 2) == kMainId || TypeAt(i + 2) == kMainKw_operator ||
          (TypeAt(i + 2) == kMainStar && LooksLikeMacro(words[i]) && i == from) ||
          (TypeAt(i + 2) == kMainAmpersand && LooksLikeMacro(words[i]) && i == from) ||
          (TypeAt(i + 2) == kMainLess && LooksLikeMacro(words[i])) ||
          (TypeAt(i + 2) == kMainScope && LooksLikeMacro(words[i]));
      if (hasTypeBefore && LooksLikeMacro(words[i + 1]) && !LooksLikeMacro(words[i])) {
        // `int name MACRO`
        if (TypeAt(i + 2) != kMainLParen || TypeAt(i + 3) == kMainRParen) {
          Erase(i + 1, i + 2);
          continue;
        }
        Erase(i + 1, PastBracket(words, i + 2));
        continue;
      }
      if (hasTypeBefore) {
        Erase(i, i + 1);
        continue;
      }
      if (hasThird) {
        if (LooksLikeMacro(words[i + 2]) && !LooksLikeMacro(words[i + 1]) &&
            !LooksLikeMacro(words[i])) {
          Erase(i + 2, TypeAt(i + 3) == kMainLParen && TypeAt(i + 4) == kMainStringLiteral
                           ? PastBracket(words, i + 3)
                           : i + 3);
        } else if (LooksLikeMacro(words[i + 1]) && !LooksLikeMacro(words[i])) {
          Erase(i + 1, i + 2);
        } else {
          Erase(i, i + 1);
        }
        continue;
      }
      // `type name MACRO;`
      i += 2;
    }
  }

  void RemoveLeadingScopes() {
    for (std::size_t i = 0; i < words.size(); ++i) {
      if (TypeAt(i) != kMainScope || TypeAt(i + 1) != kMainId) continue;
      const unsigned before = i > 0 ? TypeAt(i - 1) : 0;
      if (before == kMainId || before == kMainGreater || before == kMainRParen) continue;
      Erase(i, i + 1);
    }
  }

  /// `MACRO(arguments);` and `MACRO(arguments) { ... }`, which declare nothing that could be read.
  bool IsMacroCall(const Outline& outline) const {
    if (outline.params != 1 || TypeAt(0) != kMainId || outline.operatorWord != kNoWord) {
      return false;
    }
    if (end == DeclarationEnd::Body)
      return LooksLikeMacro(words[0]) && words[0].text != place.className;
    if (place.inClass && words[0].text == place.className) return false;
    const unsigned after = TypeAt(outline.pastParams);
    const bool ends = outline.pastParams >= words.size() || after == kMainSemicolon;
    if (!ends) return false;
    return true;
  }

  bool IsFunction(const Outline& outline) const {
    if (outline.params == kNoWord || outline.pointer != kNoWord) return false;
    if (outline.assign != kNoWord && outline.assign < outline.params) return false;
    if (end == DeclarationEnd::Body || outline.begin > 0) return true;
    if (outline.operatorWord != kNoWord || outline.arrow != kNoWord) return true;
    if (place.inClass || TypeAt(outline.params - 1) == kMainRParen) return true;
    const unsigned after = TypeAt(outline.pastParams);
    return after == kMainKw_const || after == kMainKw_noexcept || after == kMainAmpersand ||
           after == kMainAnd || after == kMainKw_override || after == kMainKw_final ||
           after == kMainKw_throw || after == kMainKw_requires || after == kMainKw_volatile ||
           TypeAt(outline.params + 1) == kMainRParen;
  }

  /// A function: its name and its scope are all that a tag shows.
  void RepairFunction(const Outline& outline) {
    if (TypeAt(0) == kMainKw_typedef) return;
    // A friend that is defined, by default, has a body to the grammar.
    if (TypeAt(outline.begin) == kMainKw_friend && outline.assign != kNoWord &&
        TypeAt(outline.assign + 1) == kMainKw_default) {
      words.back().type = kMainLCurly;
      words.back().text = "{";
      words.back().index = -1;
      words.back().span = 0;
      changed = true;
    }
    // After the parameters: `= 0`, `= default`, `= delete`, a body, and nothing else.
    const std::size_t last = words.size() - 1;
    if (outline.pastParams <= last) Erase(outline.pastParams, last);
    std::size_t params = outline.params;
    if (TypeAt(params + 1) != kMainRParen) Erase(params + 1, outline.pastParams - 1);
    // `(name)(...)`
    if (params >= 3 && TypeAt(params - 1) == kMainRParen && TypeAt(params - 3) == kMainLParen &&
        TypeAt(params - 2) == kMainId && outline.operatorWord == kNoWord) {
      Erase(params - 1, params);
      Erase(params - 3, params - 2);
      params -= 2;
    }
    // The grammar has no comma among its operators.
    if (outline.operatorWord != kNoWord && TypeAt(outline.operatorWord + 1) == kMainComma) {
      Retype(outline.operatorWord + 1, kMainPlus);
    }
    // The type of a conversion without its qualifiers, which would be taken for the operator's.
    if (outline.operatorWord != kNoWord) {
      const std::size_t type = outline.operatorWord + 1;
      while (TypeAt(type) == kMainId && TypeAt(type + 1) == kMainScope) Erase(type, type + 2);
    }
    // `A::operator T()` needs a result for the class to be read as a class.
    if (outline.operatorWord != kNoWord) {
      std::size_t name = outline.operatorWord;
      while (name >= 2 && TypeAt(name - 1) == kMainScope) {
        std::size_t before = name - 2;
        if (TypeAt(before) == kMainGreater) {
          int depth = 0;
          while (before > 0) {
            if (TypeAt(before) == kMainGreater) ++depth;
            if (TypeAt(before) == kMainLess && --depth == 0) break;
            --before;
          }
          if (before > 0) --before;
        }
        if (TypeAt(before) != kMainId) break;
        name = before;
      }
      const unsigned before = name > 0 ? TypeAt(name - 1) : 0;
      const bool hasResult = name > outline.begin && !IsSpecifier(before);
      if (!hasResult && name < outline.operatorWord) Insert(name, kMainKw_auto, "auto");
    }
  }

  void RepairVariable(const Outline& outline) {
    const unsigned first = TypeAt(0);
    if (first == kMainKw_typedef) return RepairTypedef(outline);
    if (outline.classKey == kNoWord) RemoveDefaults();
    if (TypeAt(outline.begin) == kMainKw_concept) return RepairConcept(outline);
    if (TypeAt(outline.begin) == kMainKw_namespace || first == kMainKw_namespace) return;
    // A bit field: its width is no part of a tag. One without a name is none.
    if (outline.colon != kNoWord && outline.params == kNoWord && place.inClass &&
        outline.colon + 1 < words.size() && TypeAt(0) != kMainKw_public &&
        TypeAt(0) != kMainKw_protected && TypeAt(0) != kMainKw_private && outline.colon > 0) {
      if (TypeAt(outline.colon - 1) != kMainId || outline.colon == 1) {
        Erase(0, words.size());
        return;
      }
      for (std::size_t i = outline.colon; i < words.size();) {
        if (TypeAt(i) == kMainColon) {
          std::size_t stop = i + 1;
          while (stop < words.size() && TypeAt(stop) != kMainComma &&
                 TypeAt(stop) != kMainSemicolon) {
            stop = TypeAt(stop) == kMainLParen ? PastBracket(words, stop) : stop + 1;
          }
          Erase(i, stop);
        }
        ++i;
      }
      return;
    }
    CutInitializer(outline.begin);
    RemoveTrailingMacros();
    RemoveNameArguments(outline.begin);
  }

  /// What a concept asks for has no place in its tag.
  void RepairConcept(const Outline& outline) {
    const std::size_t last = words.size() - 1;
    if (outline.assign == kNoWord || TypeAt(last) != kMainSemicolon) return;
    if (outline.assign + 1 >= last) return;
    Erase(outline.assign + 1, last);
    Insert(outline.assign + 1, kMainKw_true, "true");
    RemoveTemplateDefaults();
  }

  /// `constexpr bool name<A::B> = true;`: the arguments would be taken for part of a qualified
  /// name.
  void RemoveNameArguments(std::size_t begin) {
    const std::size_t last = words.size() - 1;
    if (begin == 0 || TypeAt(last) != kMainSemicolon || TypeAt(last - 1) != kMainGreater) return;
    for (std::size_t i = begin + 1; i < last; ++i) {
      if (TypeAt(i) == kMainLess && TypeAt(i - 1) == kMainId) {
        const std::size_t past = PastAngle(words, i);
        if (past == last && i >= begin + 2) return Erase(i, past);
        if (past != i) i = past - 1;
      }
    }
  }

  /// `typedef X name;`: only a type with a class key shows in the tag.
  void RepairTypedef(const Outline& outline) {
    RemoveTrailingMacros();
    const std::size_t last = words.size() - 1;
    if (TypeAt(last) != kMainSemicolon || outline.comma != kNoWord || outline.classKey != kNoWord ||
        outline.operatorWord != kNoWord || last < 3) {
      return;
    }
    std::size_t name = last - 1;
    if (outline.pointer != kNoWord) {
      // The last name in the parentheses.
      name = PastBracket(words, outline.pointer) - 1;
      while (name > outline.pointer && TypeAt(name) != kMainId) --name;
    } else if (outline.params != kNoWord) {
      name = outline.params - 1;
      if (TypeAt(name) == kMainRParen) --name;
    } else {
      while (name > 1 && TypeAt(name) == kMainRSquare) {
        while (name > 1 && TypeAt(name) != kMainLSquare) --name;
        --name;
      }
    }
    if (name < 2 || TypeAt(name) != kMainId) return;
    Erase(name + 1, last);
    if (name == 2 && TypeAt(1) == kMainKw_int) return;
    Erase(1, name);
    Insert(1, kMainKw_int, "int");
  }

  /// A lone initialiser, which declares nothing.
  void CutInitializer(std::size_t from) {
    const std::size_t last = words.size() - 1;
    if (TypeAt(last) != kMainSemicolon) return;
    std::size_t i = from;
    while (i < last) {
      const unsigned type = TypeAt(i);
      if (type == kMainLParen || type == kMainLSquare) {
        i = PastBracket(words, i);
        continue;
      }
      if (type == kMainLess && i > 0 && TypeAt(i - 1) == kMainId) {
        i = std::max(PastAngle(words, i), i + 1);
        continue;
      }
      if (type == kMainKw_operator) return;
      if (type == kMainAssign || type == kMainLCurly) break;
      ++i;
    }
    if (i >= last) return;
    // Up to the next declarator.
    std::size_t stop = i;
    while (stop < last && TypeAt(stop) != kMainComma) {
      const unsigned type = TypeAt(stop);
      if (type == kMainLParen || type == kMainLSquare) {
        stop = PastBracket(words, stop);
      } else if (type == kMainLess && TypeAt(stop - 1) == kMainId) {
        stop = std::max(PastAngle(words, stop), stop + 1);
      } else {
        ++stop;
      }
    }
    stop = std::min(stop, last);
    Erase(i, stop);
    if (TypeAt(i) == kMainComma) CutInitializer(i + 1);
  }

  /// Default arguments, which may be any expression.
  void RemoveDefaults() {
    int depth = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
      const unsigned type = TypeAt(i);
      if (type == kMainLParen) ++depth;
      if (type == kMainRParen) --depth;
      if (type != kMainAssign || depth == 0) continue;
      std::size_t stop = i + 1;
      while (stop < words.size() && TypeAt(stop) != kMainComma && TypeAt(stop) != kMainRParen) {
        const unsigned inside = TypeAt(stop);
        if (inside == kMainLParen || inside == kMainLSquare) {
          stop = PastBracket(words, stop);
        } else if (inside == kMainLess && TypeAt(stop - 1) == kMainId) {
          stop = std::max(PastAngle(words, stop), stop + 1);
        } else {
          ++stop;
        }
      }
      Erase(i, std::min(stop, words.size()));
      --i;
    }
  }

  /// `int name MACRO;`, `int f(int) MACRO(x);`
  void RemoveTrailingMacros() {
    for (;;) {
      if (words.size() < 4 || TypeAt(words.size() - 1) != kMainSemicolon) return;
      std::size_t at = words.size() - 2;
      if (TypeAt(at) == kMainRParen) {
        int depth = 0;
        while (at > 0) {
          if (TypeAt(at) == kMainRParen) ++depth;
          if (TypeAt(at) == kMainLParen && --depth == 0) break;
          --at;
        }
        if (at < 3) return;
        --at;
      }
      if (TypeAt(at) != kMainId) return;
      const unsigned before = TypeAt(at - 1);
      if (before == kMainRParen) {
        int depth = 0;
        std::size_t open = at - 1;
        while (open > 0) {
          if (TypeAt(open) == kMainRParen) ++depth;
          if (TypeAt(open) == kMainLParen && --depth == 0) break;
          --open;
        }
        // The name after the type `decltype(...)`, or after one that a macro makes.
        if (open == 0 || TypeAt(open - 1) == kMainKw_decltype || open == 1) return;
      }
      const bool isExtra = before == kMainRParen || before == kMainRSquare ||
                           (before == kMainId && at >= 3 &&
                            (TypeAt(at - 2) == kMainId || TypeAt(at - 2) == kMainStar ||
                             IsBuiltInType(TypeAt(at - 2)) || TypeAt(at - 2) == kMainGreater ||
                             TypeAt(at - 2) == kMainAmpersand || TypeAt(at - 2) == kMainComma));
      if (!isExtra) return;
      Erase(at, words.size() - 1);
    }
  }

  /// The grammar has `enum` only where one is declared; elsewhere the name alone is the type.
  void RemoveEnumWords() {
    for (std::size_t i = 0; i < words.size();) {
      const bool isForward = TypeAt(i) == kMainKw_enum && i == 0 &&
                             (TypeAt(2) == kMainSemicolon || TypeAt(3) == kMainSemicolon) &&
                             TypeAt(1) != kMainId;
      if (TypeAt(i) == kMainKw_enum && !isForward) {
        if (i == 0 && (TypeAt(2) == kMainSemicolon || TypeAt(2) == kMainColon)) {
          ++i;
          continue;
        }
        Erase(i, i + 1);
      } else {
        ++i;
      }
    }
  }

  /// `auto` is a type like any other where qualifiers or references are around it.
  void RetypeAuto() {
    for (std::size_t i = 0; i < words.size(); ++i) {
      if (TypeAt(i) != kMainKw_auto || words[i].index < 0) continue;
      words[i].type = kMainId;
      changed = true;
    }
  }

  Words& words;
  DeclarationEnd end;
  const DeclarationPlace& place;
  bool changed = false;
};

}  // namespace

bool RepairDeclaration(Words& words, DeclarationEnd end, const DeclarationPlace& place) {
  return Repair(words, end, place).Run();
}

}  // namespace vexltags::thorough
