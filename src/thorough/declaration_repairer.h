// SPDX-License-Identifier: MIT
// Rewrites the words of one declaration.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "thorough/declaration_outline.h"
#include "thorough/declaration_repair.h"

namespace vexltags::thorough {

/// True for words such as `static`, `inline` and `friend`, which come before the type.
bool IsSpecifier(unsigned type);

/// The steps of `RepairDeclaration`, each in the file of the construct that it repairs.
class DeclarationRepairer {
 public:
  /// `words` and `place` must outlive the repairer; `words` is rewritten in place.
  DeclarationRepairer(Words& words, DeclarationEnd end, const DeclarationPlace& place)
      : words(words), end(end), place(place) {}

  /// Repairs the declaration. Returns true if it has changed anything.
  bool Run();

 private:
  // Edits

  /// Removes the words from `from` up to, but not including, `to`.
  void Erase(std::size_t from, std::size_t to) {
    if (from >= to) return;
    words.erase(words.begin() + static_cast<std::ptrdiff_t>(from),
                words.begin() + static_cast<std::ptrdiff_t>(to));
    changed = true;
  }
  /// Gives the word at `at` another type; its text stays.
  void Retype(std::size_t at, unsigned type) {
    words[at].type = type;
    changed = true;
  }
  /// Inserts a word that is not in the source before the one at `at`.
  void Insert(std::size_t at, unsigned type, std::string_view text);
  /// The type of the word at `at`; 0 past the last one.
  unsigned TypeAt(std::size_t at) const { return at < words.size() ? words[at].type : 0; }

  /// As `PastAngle` of the word at `open`, for a bounded number of angles that stay open: each of
  /// them costs a look at the whole rest.
  std::size_t PastAngles(std::size_t open) {
    constexpr int kMostOpenAngles = 32;
    if (openAngles == kMostOpenAngles) return open;
    const std::size_t past = PastAngle(words, open);
    if (past == open) ++openAngles;
    return past;
  }

  // Classes and namespaces

  /// Leaves the template head, the key, the name and `final` of a class.
  void RepairClass();
  /// Leaves `inline`, the keyword and the name of a namespace.
  void RepairNamespace();
  /// Keeps one of the names between the words at `key` and `stop`: the last that does not look
  /// like a macro, or else the last. Returns the index after it.
  std::size_t KeepOneName(std::size_t key, std::size_t stop);

  // Enums

  /// Leaves `typedef`, the key, the name and the enumerators of an enum.
  void RepairEnum();
  /// Reduces each enumerator after the `{` at `open` to its name and its comma.
  void RepairEnumerators(std::size_t open);
  /// Appends the words from `from`, which follow the `}` of an enum, to `kept`. The grammar reads
  /// one plain name there; further names become declarations of their own.
  void RepairEnumTail(std::size_t from, Words& kept);

  // Objective-C

  /// Removes the types of a method, which its tag does not show, and macros after its selector.
  void RepairMethod();
  /// Reduces a property to its attributes, `int` and its name.
  void RepairProperty();
  /// Appends the attributes between `from` and `to` that decide which tags a property has to
  /// `kept`: `readonly`, `getter=x` and `setter=x:`.
  void KeepAttributes(std::size_t from, std::size_t to, Words& kept);
  /// Appends one attribute, after a comma unless it is the first.
  static void Append(Words& attributes, std::initializer_list<Word> added);
  /// Leaves the name and the category of `@interface Name : Base <P> {`, which the tag shows.
  void RepairObjcHead();

  // Templates, aliases and concepts

  /// Replaces the type of an alias by `int`, unless it begins with a class key.
  void RepairUsing();
  /// Replaces the constraint of a concept, which its tag does not show, by `true`.
  void RepairConcept(const Outline& outline);
  /// Removes the parameters of templates, which show in the names of classes and concepts only.
  void EmptyTemplateHeads();
  /// Removes the constraint of a template that begins at `from`, after its head.
  void RemoveConstraint(std::size_t from);
  /// Removes the default arguments of template parameters, which may be any expression.
  void RemoveTemplateDefaults();

  // Macros without a definition

  /// Removes macros at the beginning of a declaration: `API_EXPORT int f();`
  void RemoveMacrosBefore();
  /// True if the word at `name` is that of a function whose result the call at `macro` before it
  /// makes: `API(int) name(int a);`
  bool NamesFunctionAfterMacro(std::size_t macro, std::size_t name) const;
  /// Removes `template(typename T)(requires X<T>)` and `MAKE_TEMPLATE(typename T)(requires X<T>)`,
  /// which some libraries use in place of a template head.
  void RemoveMadeTemplateHead();
  /// Removes macros at `at` that are lines of their own, or several before a word that begins a
  /// declaration.
  void RemoveMacroLines(std::size_t at);
  /// Removes, of three names in a row at or after `from`, the one that is neither type nor name.
  void RemoveThirdNames(std::size_t from);
  /// Removes macros before the `;`: `int name MACRO;`, `int f(int) MACRO(x);`
  void RemoveTrailingMacros();
  /// True for `MACRO(arguments);` and `MACRO(arguments) { ... }`, which declare nothing that could
  /// be read.
  bool IsMacroCall(const Outline& outline) const;
  /// Makes a member of the call of a macro in a class whose arguments declare one, such as
  /// `CONSTANT(int, name = 1);`, `METHOD(int, name, (int a));` and `METHOD(name, int(int a));`.
  /// Returns false, and changes nothing, for any other call.
  bool RepairMemberCall();
  /// True if the words from `from` up to, but not including, `to` can be a type.
  bool IsType(std::size_t from, std::size_t to) const;
  /// True if the words from `from` up to, but not including, `to` are the type of a function and no
  /// call.
  bool IsFunctionType(std::size_t from, std::size_t to) const;

  // Functions

  /// True if what begins at `at` is the declaration of a parameter and no expression.
  bool BeginsParameter(std::size_t at) const;
  /// True if one of the parameters in `outline` is surely one.
  bool HasParameters(const Outline& outline) const;
  /// True if the declaration is a function rather than a variable with an initialiser.
  bool IsFunction(const Outline& outline) const;
  /// Leaves the result, the scope and the name of a function; the tag shows scope and name.
  void RepairFunction(const Outline& outline);

  // Several names

  /// The commas between the declarators from `begin` on, and the last word.
  std::vector<std::size_t> DeclaratorEnds(std::size_t begin);
  /// Makes a declaration of each declarator where one of several has parentheses:
  /// `int f(int), *g(int);`. Returns false, and changes nothing, for any other declaration.
  bool SplitDeclarators(const Outline& outline);

  // Variables and typedefs

  /// Repairs `} name;` after a class.
  void RepairTail();
  /// Repairs whatever is not a function.
  void RepairVariable(const Outline& outline);
  /// Removes the widths of bit fields, the first of which follows the word at `colon`, and those
  /// that have no name.
  void RepairBitFields(std::size_t colon);
  /// Removes the arguments in `const Type name("text");`, which cannot be parameters.
  void RemoveArguments();
  /// True if one of the parameters in `outline` is a literal or a cast, and thus an argument:
  /// `const Type name(other, 1);`
  bool HasValue(const Outline& outline) const;
  /// Removes the arguments in `constexpr bool name<A::B> = true;`, which would be taken for part
  /// of a qualified name.
  void RemoveNameArguments(std::size_t begin);
  /// Replaces the type in `typedef X name;` by `int`: only a type with a class key shows in the
  /// tag.
  void RepairTypedef(const Outline& outline);
  /// Removes the initialisers of the declarators from `from` on.
  void CutInitializer(std::size_t from);
  /// Removes default arguments, which may be any expression.
  void RemoveDefaults();

  // Declarations in general

  /// Repairs a function, a variable or another declaration without a list of members.
  void RepairPlain();
  /// Makes names of C++ keywords in C, and where only a name can be.
  void RetypeNames();
  /// Removes `::` where nothing qualifies it: `::a::b` becomes `a::b`.
  void RemoveLeadingScopes();
  /// Removes `enum` before the name of a type: the grammar has the word only where an enum is
  /// declared.
  void RemoveEnumWords();
  /// Removes `__weak` and `__strong`, which the grammar has before a type only.
  void RemoveOwnership();
  /// Makes a name of `auto`, which the grammar then reads as a type, with qualifiers or references.
  void RetypeAuto();

  Words& words;
  DeclarationEnd end;
  const DeclarationPlace& place;
  bool changed = false;
  int openAngles = 0;
};

}  // namespace vexltags::thorough
