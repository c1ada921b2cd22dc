// SPDX-License-Identifier: MIT
// Tests of the tags of a file.
#include "ctags/file_tags.h"

#include <gtest/gtest.h>

namespace vexltags::ctags {
namespace {

using Lines = std::vector<std::string>;

/// Returns name, letter, line and scope of each tag of a source file.
Lines TagsOf(LanguageIndex language, std::string_view text, const Lines& raw, bool isHeader = false,
             const Details& details = {.signatures = true}) {
  Lines lines;
  for (const std::string& line : raw) lines.push_back(line + "\n");
  Lines result;
  for (const Tag& tag : MakeTags(lines, text, Languages()[language], isHeader, details)) {
    std::string shown = tag.name + " " + tag.kind->letter + " " + std::to_string(tag.line);
    if (!tag.scope.empty()) shown += " " + std::string(tag.scopeKind) + ":" + tag.scope;
    if (!tag.signature.empty()) shown += " " + tag.signature;
    if (tag.isFileScope) shown += " file";
    if (!tag.access.empty()) shown += " " + std::string(tag.access);
    if (tag.end != 0) shown += " -" + std::to_string(tag.end);
    result.push_back(shown);
  }
  return result;
}

TEST(FileTags, CorrectTheKindOfAScope) {
  constexpr std::string_view kText = "struct S { void f(); };\nvoid S::f() {}\nvoid T::g() {}\n";
  EXPECT_EQ(
      TagsOf(kCxx, kText, {"S\t-\t1;\"\ts", "f\t-\t2;\"\tf\tclass:S", "g\t-\t3;\"\tf\tclass:T"}),
      (Lines{"S s 1 file", "f f 2 struct:S ()", "g f 3 class:T ()"}));
  constexpr std::string_view kSpaces = "namespace n {\nvoid T::g() {}\nint h() {}\n}";
  EXPECT_EQ(
      TagsOf(kCxx, kSpaces,
             {"n\t-\t1;\"\tn", "g\t-\t2;\"\tf\tnamespace:n::T", "h\t-\t3;\"\tf\tnamespace:n"}),
      (Lines{"n n 1 file", "g f 2 class:n::T ()", "h f 3 namespace:n ()"}));
  constexpr std::string_view kPythonText = "class A:\n  def m(self):\n    def i(): pass\n";
  EXPECT_EQ(TagsOf(kPython, kPythonText,
                   {"A\t-\t1;\"\tc", "m\t-\t2;\"\tm\tclass:A", "i\t-\t3;\"\tf\tfunction:A.m"}),
            (Lines{"A c 1", "m m 2 class:A (self)", "i f 3 member:A.m ()"}));
}

TEST(FileTags, HaveTheScopeOfTheirType) {
  EXPECT_EQ(
      TagsOf(kCxx, "namespace n {\nstruct P { } p;\n}",
             {"n\t-\t1;\"\tn", "P\t-\t2;\"\ts\tnamespace:n", "p\t-\t2;\"\tv\ttyperef:struct:n::P"},
             true),
      (Lines{"n n 1", "P s 2 namespace:n", "p v 2 namespace:n"}));
}

TEST(FileTags, NameAnonymousTypes) {
  constexpr std::string_view kText = "typedef struct\n{\n  int a;\n  union { int b; } u;\n} T;\n";
  EXPECT_EQ(TagsOf(kC, kText,
                   {"a\t-\t3;\"\tm\tstruct:__anon1", "b\t-\t4;\"\tm\tunion:__anon1::__anon2",
                    "u\t-\t4;\"\tm\ttyperef:union:__anon1::__anon2",
                    "T\t-\t5;\"\tt\ttyperef:struct:__anon1"},
                   true),
            (Lines{"__anon1 s 1", "a m 3 struct:__anon1", "__anon2 u 4 struct:__anon1",
                   "b m 4 union:__anon1::__anon2", "u m 4 struct:__anon1", "T t 5"}));
}

TEST(FileTags, TellWhatOnlyTheirFileCanUse) {
  constexpr std::string_view kText =
      "static int a;\nint b;\nstatic void f() {}\n#define M 1\nextern int x;\nint g();\n";
  const Lines raw = {"a\t-\t1;\"\tv", "b\t-\t2;\"\tv", "f\t-\t3;\"\tf",
                     "M\t-\t4;\"\td", "x\t-\t5;\"\tv", "g\t-\t6;\"\tp"};
  EXPECT_EQ(TagsOf(kC, kText, raw), (Lines{"a v 1 file", "b v 2", "f f 3 () file", "M d 4 file",
                                           "x x 5", "g p 6 () file"}));
  EXPECT_EQ(TagsOf(kC, kText, raw, true),
            (Lines{"a v 1", "b v 2", "f f 3 ()", "M d 4", "x x 5", "g p 6 ()"}));
}

TEST(FileTags, HaveAccessAndEnds) {
  constexpr Details kDetails = {.access = true, .ends = true};
  constexpr std::string_view kText =
      "class C {\n  int a;\npublic:\n  C() : a(1) {\n  }\n  void f() const {\n  }\n"
      "  struct S { int b; struct { int c; }; };\n};\nvoid C::g(int a) {\n}\n";
  EXPECT_EQ(
      TagsOf(kCxx, kText,
             {"C\t-\t1;\"\tc", "a\t-\t2;\"\tm\tclass:C", "C\t-\t4;\"\tf\tclass:C",
              "f\t-\t6;\"\tf\tclass:C", "S\t-\t8;\"\ts\tclass:C", "b\t-\t8;\"\tm\tstruct:C::S",
              "c\t-\t8;\"\tm\tstruct:C::S::__anon1", "g\t-\t10;\"\tf\tclass:C"},
             true, kDetails),
      (Lines{"C c 1 -9", "a m 2 class:C private", "C f 4 class:C () public",
             "f f 6 class:C () const public -7", "S s 8 class:C public -8",
             "b m 8 struct:C::S public", "__anon1 s 8 struct:C::S", "c m 8 struct:C::S::__anon1",
             "g f 10 class:C (int a) -11"}));
  EXPECT_EQ(TagsOf(kObjectiveC, "@implementation V\n- (void)m\n{\n}\n@end\n",
                   {"V\t-\t1;\"\tw", "m\t-\t2;\"\to\timplementation:V"}, false, kDetails),
            (Lines{"V I 1 -5", "m m 2 implementation:V () -4"}));
}

TEST(FileTags, SplitCategoriesFromClasses) {
  EXPECT_EQ(TagsOf(kObjectiveC, "@interface V (E)\n- (int)a:(int)b;\n@end\n",
                   {"V(E)\t-\t1;\"\tX", "a:\t-\t2;\"\ti\tinterface:V(E)"}),
            (Lines{"V i 1", "E C 1 interface:V", "a: m 2 interface:V (int)"}));
  EXPECT_EQ(
      TagsOf(kObjectiveC, "@property int n;\nint v;\nclass C { int m; };\n",
             {"n\t-\t1;\"\tr\tinterface:V", "setN:\t-\t1;\"\tr\tinterface:V", "v\t-\t2;\"\tm",
              "C\t-\t3;\"\tc", "m\t-\t3;\"\tm\tclass:C"}),
      (Lines{"n p 1 interface:V", "setN: m 1 interface:V", "v v 2", "C s 3", "m E 3 struct:C"}));
}

TEST(FileTags, KnowSwiftScopesAndLabels) {
  EXPECT_EQ(TagsOf(kSwift, "struct P {\n  func f(to a: Int) {}\n}\nmacro(g)\n",
                   {"P\t-\t1;\"\ts", "f(to:)\t-\t2;\"\tf\tP", "g(_,b:)\t-\t4;\"\tf"}),
            (Lines{"P s 1", "f f 2 struct:P (to a: Int)", "g f 4 (_:b:)"}));
}

TEST(FileTags, LeaveOutWhatIsNoTag) {
  EXPECT_EQ(TagsOf(kC, "int a;\n", {"!_TAG\t2\t/x/", "\t-\t1;\"\tv", "odd", "N\t-\t1;\"\tn"}),
            Lines{});
  EXPECT_EQ(TagsOf(kC, "int a;\n", {"a\t-\t-1;\"\tv"}), Lines{"a v 1"});
}

TEST(FileTags, MakeAFileObjectiveC) {
  const Language& cxx = Languages()[kCxx];
  EXPECT_EQ(LanguageOfTags(cxx, {"a\t-\t1;\"\tv\n", "V\t-\t2;\"\tX\n"}).name, "ObjectiveC");
  EXPECT_EQ(LanguageOfTags(cxx, {"a\t-\t1;\"\tv\n"}).name, "C++");
  EXPECT_EQ(LanguageOfTags(Languages()[kSwift], {"P\t-\t1;\"\tY\n"}).name, "Swift");
}

}  // namespace
}  // namespace vexltags::ctags
