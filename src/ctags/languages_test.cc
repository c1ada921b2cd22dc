// SPDX-License-Identifier: MIT
// Tests of languages, their kinds and their files.
#include "ctags/languages.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "output/kinds.h"

namespace vexltags::ctags {
namespace {

std::string NameOf(const Language* language) {
  return language == nullptr ? "none" : std::string(language->name);
}

TEST(CtagsLanguages, AreFoundByNameAndAliasInAnyCase) {
  EXPECT_EQ(NameOf(FindLanguage("c")), "C");
  EXPECT_EQ(NameOf(FindLanguage("C++")), "C++");
  EXPECT_EQ(NameOf(FindLanguage("cpp")), "C++");
  EXPECT_EQ(NameOf(FindLanguage("ObjC")), "ObjectiveC");
  EXPECT_EQ(NameOf(FindLanguage("objective-c")), "ObjectiveC");
  EXPECT_EQ(NameOf(FindLanguage("PYTHON")), "Python");
  EXPECT_EQ(NameOf(FindLanguage("swift")), "Swift");
  EXPECT_EQ(NameOf(FindLanguage("")), "none");
  EXPECT_EQ(NameOf(FindLanguage("c#")), "none");
}

TEST(CtagsLanguages, HaveFilesBySuffix) {
  EXPECT_EQ(NameOf(LanguageOfPath("a.c")), "C");
  EXPECT_EQ(NameOf(LanguageOfPath("a.C")), "C++");
  EXPECT_EQ(NameOf(LanguageOfPath("dir.py/a.h")), "C++");
  EXPECT_EQ(NameOf(LanguageOfPath("dir.py/a")), "none");
  EXPECT_EQ(NameOf(LanguageOfPath("a.mm")), "ObjectiveC");
  EXPECT_EQ(NameOf(LanguageOfPath("a.pyx")), "Python");
  EXPECT_EQ(NameOf(LanguageOfPath("a.swift")), "Swift");
  EXPECT_EQ(NameOf(LanguageOfPath("a.swift.orig")), "none");
  EXPECT_TRUE(IsHeader("a.hh"));
  EXPECT_FALSE(IsHeader("a.cc"));
}

TEST(CtagsLanguages, HaveFilesByFirstLine) {
  EXPECT_EQ(NameOf(LanguageOfFirstLine("#!/usr/bin/python3 -u\n")), "Python");
  EXPECT_EQ(NameOf(LanguageOfFirstLine("// -*- C++ -*-")), "C++");
  EXPECT_EQ(NameOf(LanguageOfFirstLine("// -*- tab-width: 2; mode: c; -*-")), "C");
  EXPECT_EQ(NameOf(LanguageOfFirstLine("// -*- C++ -*")), "none");
  EXPECT_EQ(NameOf(LanguageOfFirstLine("// -*-  -*-")), "none");
  EXPECT_EQ(NameOf(LanguageOfFirstLine("\n// -*- C++ -*-")), "none");
  EXPECT_EQ(NameOf(LanguageOfFirstLine("#!/bin/sh\n# python")), "none");
  EXPECT_EQ(NameOf(LanguageOfFirstLine("")), "none");
}

TEST(CtagsLanguages, HaveEachLetterOnceAndInOrder) {
  for (const Language& language : Languages()) {
    std::set<std::string_view> names;
    char last = ' ';
    for (const Kind& kind : language.kinds) {
      EXPECT_LT(last, kind.letter) << language.name;
      last = kind.letter;
      EXPECT_TRUE(names.insert(kind.name).second) << kind.name;
    }
    EXPECT_EQ(&Languages()[IndexOf(language)], &language);
  }
}

char LetterOf(LanguageIndex language, char raw) {
  const Kind* kind = KindOf(Languages()[language], raw);
  return kind == nullptr ? '-' : kind->letter;
}

TEST(CtagsLanguages, MapTheKindsOfTagLines) {
  EXPECT_EQ(LetterOf(kC, kind_letter::kClass), 's');
  EXPECT_EQ(LetterOf(kC, kind_letter::kNamespace), '-');
  EXPECT_EQ(LetterOf(kCxx, kind_letter::kClass), 'c');
  EXPECT_EQ(LetterOf(kCxx, kind_letter::kInterface), '-');
  EXPECT_EQ(LetterOf(kObjectiveC, kind_letter::kInterface), 'i');
  EXPECT_EQ(LetterOf(kObjectiveC, kind_letter::kImplementation), 'I');
  EXPECT_EQ(LetterOf(kObjectiveC, kind_letter::kClassMethodDefinition), 'c');
  EXPECT_EQ(LetterOf(kObjectiveC, kind_letter::kInstanceMethodDeclaration), 'm');
  EXPECT_EQ(LetterOf(kObjectiveC, kind_letter::kMember), 'E');
  EXPECT_EQ(LetterOf(kObjectiveC, kind_letter::kFunctionDeclaration), 'f');
  EXPECT_EQ(LetterOf(kObjectiveC, kind_letter::kDeclaredAccessor), 'p');
  EXPECT_EQ(LetterOf(kPython, kind_letter::kMember), 'm');
  EXPECT_EQ(LetterOf(kSwift, kind_letter::kExtension), 'Z');
}

}  // namespace
}  // namespace vexltags::ctags
