// SPDX-License-Identifier: MIT
// Tests of recognizing headers by their first lines.
#include "sources/header_guess.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

TEST(LooksLikeHeader, TakesHeaders) {
  for (const char* text : {
           "// Vectors -*- C++ -*-\nsomething",
           "/* first */\n/* -*- mode: c++; tab-width: 2 -*- */\n",
           "// -*-c-*-",
           "#pragma once\n",
           "\xEF\xBB\xBF#pragma once\n",
           "#include \"qobject.h\"\n",
           "#include <vector>",
           "#import <UIKit/UIKit.h>\n",
           "// A licence.\n//\n\n#ifndef EIGEN_CORE\n#define EIGEN_CORE\n",
           "/* A licence\n * of lines */  \r\n#ifndef A_H /* guard */\r\n",
           "#if defined(A) && B\n",
           "#if !defined A\n",
           "#if __cplusplus > 1\n",
           "#define A_H\n",
           "#pragma GCC system_header\n",
       }) {
    EXPECT_TRUE(LooksLikeHeader(text)) << text;
  }
}

TEST(LooksLikeHeader, LeavesOtherFilesAlone) {
  for (const char* text : {
           "",
           "\n\n",
           "#!/bin/sh\n#ifndef A\n",
           "#!/usr/bin/env python\n# -*- C -*-\n",
           "# -*- mode: sh -*-\n",
           "# -*- Makefile -*-\n",
           "# include the rules\ninclude rules.mk\n",
           "#include rules\n",
           "#includedir /etc/sudoers.d\n",
           "#define\n",
           "#if this is set, then\n",
           "#ifdef you want that\n",
           "# define A\n",
           "#pragmatic\n",
           "all:\n\tcc a.c\n",
           "MIT License\n\n#include <a>\n",
           "/* never closed\n#include <a>\n",
           "!_TAG_FILE_FORMAT\t2\t//\n",
           "int main() {}\n",
       }) {
    EXPECT_FALSE(LooksLikeHeader(text)) << text;
  }
  EXPECT_FALSE(LooksLikeHeader(std::string_view("#pragma once\n\0", 14)));
}

TEST(LooksLikeHeader, LooksAtTheFirstBytesOnly) {
  const std::string licence(kHeaderGuessBytes - 30, '\n');
  EXPECT_TRUE(
      LooksLikeHeader(licence + "#pragma once\n" + std::string(17, ' ') + std::string(100, '\0')));
  EXPECT_FALSE(LooksLikeHeader(licence + std::string(30, '\n') + "#pragma once\n"));
}

}  // namespace
}  // namespace vexltags
