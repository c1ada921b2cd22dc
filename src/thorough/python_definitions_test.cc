// SPDX-License-Identifier: MIT
// Tests of finding Python's definitions without a grammar.
#include "thorough/python_definitions.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags::thorough {
namespace {

/// Each definition as "name:line:depth", classes in brackets, joined by blanks.
std::string Definitions(const std::string& source) {
  std::string result;
  PythonDefinitions definitions(source);
  for (PythonDefinition found; definitions.Next(found);) {
    std::string one = std::string(found.name) + ":" + std::to_string(found.line) + ":" +
                      std::to_string(found.depth);
    if (found.isClass) one = "[" + one + "]";
    result += (result.empty() ? "" : " ") + one;
  }
  return result;
}

TEST(PythonDefinitions, FindsClassesAndFunctions) {
  EXPECT_EQ(Definitions(
                "class A:\n  def f(self): pass\n  class B(A):\n    def g(self) -> int:\ndef h():"),
            "[A:1:0] f:2:1 [B:3:1] g:4:2 h:5:0");
  EXPECT_EQ(
      Definitions("class A[T](B): pass\nasync def f[T](x: T): pass\ndef  \\\n  g \\\n (): pass"),
      "[A:1:0] f:2:0 g:4:0");
  EXPECT_EQ(Definitions("class A:\n\tasync def f(self):\n\t\tdef g(): pass"),
            "[A:1:0] f:2:1 g:3:2");
  EXPECT_EQ(Definitions("def na\xC3\xAFve(): pass\ncdef class C(D): pass"),
            "na\xC3\xAFve:1:0 [C:2:0]");
}

TEST(PythonDefinitions, SkipsAByteOrderMark) {
  EXPECT_EQ(Definitions("\xEF\xBB\xBF"
                        "class A: pass"),
            "[A:1:0]");
}

TEST(PythonDefinitions, FindsNothingElse) {
  for (const char* source :
       {"", "x = 1", "defer(1)", "classes: int", "# def f():", "x = 'def f():'",
        "\"\"\"\ndef f():\n\"\"\"", "cdef int f(int x):", "def",
        "class:", "def 1f():", "x = r'\\'\n'def f(): '", "cdef class C"}) {
    EXPECT_EQ(Definitions(source), "") << source;
  }
}

TEST(PythonDefinitions, SwallowsNothing) {
  EXPECT_EQ(
      Definitions("x = f(size=-1)\ndef g(a=-1, b=-\"x\"):\n  return -1 \t\n  \ndef h(): pass"),
      "g:2:0 h:5:0");
  EXPECT_EQ(Definitions("x = \"open\ndef f(): pass"), "f:2:0");
  EXPECT_EQ(Definitions("x = 'a\\\ndef f():'\ndef g(): pass"), "g:3:0");
  EXPECT_EQ(Definitions("x = (\ndef f(): pass"), "f:2:0");
  EXPECT_EQ(Definitions("x = '''a\ndef f(): pass"), "f:2:0");
  EXPECT_EQ(Definitions("x = 1 # '\rdef f(): pass\r\ndef g(): pass"), "f:1:0 g:2:0");
}

TEST(PythonDefinitions, KnowsScopesByEveryStatement) {
  EXPECT_EQ(Definitions("class A:\n  x = 1\nif x:\n  def f(): pass"), "[A:1:0] f:4:0");
  EXPECT_EQ(Definitions("class A:\n  if x:\n    def f(): pass\n  else:\n    def f(): pass"),
            "[A:1:0] f:3:1 f:5:1");
  EXPECT_EQ(
      Definitions("def f():\n  x = [\n1,\n]\n  y = 1 + \\\n2\n  '''a\nb'''\n# c\n  def g(): pass"),
      "f:1:0 g:10:1");
  EXPECT_EQ(Definitions("class A:\n        def f(): pass\n\tdef g(): pass"), "[A:1:0] f:2:1 g:3:1");
}

TEST(PythonDefinitions, ReadsLongRunsInLinearTime) {
  for (const char* piece :
       {"(", "'", "\"\"\"", "'''\"\"\"", "\\\n", "async ", "async\n", "def ", "'''\\"}) {
    std::string source;
    for (int i = 0; i < 100000; ++i) source += piece;
    EXPECT_EQ(Definitions(source), "") << piece;
  }
}

}  // namespace
}  // namespace vexltags::thorough
