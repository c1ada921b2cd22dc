#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints how time and memory grow with the size of nested, repeated and unclosed input.

Each family of inputs is indexed at sizes n, 2n and 4n. Twice the size should cost at most twice the
time; the last column is the growth of time from 2n to 4n, 2.0 for linear cost and 4.0 for squared.
This is a tool to look with and no test: a test with a clock in it fails on a busy machine.

    tests/growth.py build/release/vexltags              every family at n = 25000
    tests/growth.py build/release/vexltags -n 5000 swift
                                                        the families with "swift" in their name
"""
import argparse
import os
import resource
import signal
import subprocess
import sys
import tempfile
import time


def nested(opening, closing, core="1", head="", tail=";"):
    return lambda n: head + opening * n + core + closing * n + tail + "\n"


def repeated(piece, head="", tail="\n"):
    return lambda n: head + piece * n + tail


def numbered(piece, head="", tail="\n"):
    """`piece` with each {i} replaced by its number."""
    return lambda n: head + "".join(piece.replace("{i}", str(i)) for i in range(n)) + tail


def c_families():
    yield "parentheses-initializer", nested("(", ")", head="int a = ")
    yield "parentheses-statement", nested("(", ")", tail=";")
    yield "parentheses-enumerator", nested("(", ")", head="enum E { A = ", tail="};")
    yield "parentheses-array-size", nested("(", ")", head="int a[", tail="];")
    yield "parentheses-declarator", nested("(", ")", core="a", head="int ")
    yield "parentheses-typedef", nested("(", ")", core="a", head="typedef int ")
    yield "parentheses-parameter", nested("(", ")", core="a", head="void f(int ", tail=");")
    yield "parentheses-default", nested("(", ")", head="void f(int a = ", tail=");")
    yield "parentheses-bitfield", nested("(", ")", head="struct S { int a : ", tail="; };")
    yield "parentheses-attribute", nested("(", ")", head="int a __attribute__", tail=";")
    yield "parentheses-macro-call", nested("M(", ")", tail="")
    yield "calls", nested("f(", ")", head="int a = ")
    yield "calls-enumerator", nested("f(", ")", head="enum E { A = ", tail="};")
    yield "casts", repeated("(int)", "int a = ", "1;\n")
    yield "casts-enumerator", repeated("(int)", "enum E { A = ", "1 };\n")
    yield "casts-name", repeated("(t)", "int a = ", "1;\n")
    yield "casts-pointer", nested("(int *)(", ")", head="int a = ")
    yield "static-cast", nested("static_cast<int>(", ")", head="int a = ")
    yield "static-cast-enumerator", nested("static_cast<int>(", ")", head="enum E { A = ", tail="};")
    yield "sizeof", nested("sizeof(", ")", head="int a = ")
    yield "sizeof-enumerator", nested("sizeof(", ")", head="enum E { A = ", tail="};")
    yield "sizeof-bare", repeated("sizeof ", "int a = ", "1;\n")
    yield "ternaries", repeated("a ? b : ", "int x = ", "c;\n")
    yield "ternaries-enumerator", repeated("a ? b : ", "enum E { A = ", "c };\n")
    yield "ternaries-left", nested("a ? ", " : b", core="c", head="enum E { A = ", tail="};")
    yield "ternaries-parentheses", nested("(a ? b : ", ")", head="enum E { A = ", tail="};")
    yield "operators-sum", repeated("1 + ", "enum E { A = ", "1 };\n")
    yield "operators-sum-initializer", repeated("1 + ", "int a = ", "1;\n")
    yield "operators-prefix", repeated("- ", "enum E { A = ", "1 };\n")
    yield "operators-less", repeated("a < ", "enum E { A = ", "1 };\n")
    yield "operators-not", repeated("!", "int a = ", "1;\n")
    yield "operators-star", repeated("*", "int a = ", "b;\n")
    yield "assignments", repeated("a = ", "int x = ", "1;\n")
    yield "member-access", repeated("a.", "int x = ", "b;\n")
    yield "subscripts", nested("a[", "]", head="int x = ")
    yield "subscripts-row", repeated("[1]", "int x = a", ";\n")
    yield "braces-block", nested("{", "}", core="", tail="")
    yield "braces-function", nested("{", "}", core="", head="void f() ", tail="")
    yield "braces-initializer", nested("{", "}", head="int a[] = ")
    yield "braces-initializer-rows", repeated("{1}, ", "int a[] = {", "};\n")
    yield "braces-direct-initializer", nested("{", "}", head="int a")
    yield "braces-argument", nested("f({", "})", head="int a = ")
    yield "brackets-size", nested("[", "]", head="int a")
    yield "brackets-row", repeated("[1]", "int a", ";\n")
    yield "brackets-attribute", nested("[[", "]]", core="a", tail=" int x;")
    yield "brackets-statement", nested("[", "]")
    yield "messages", nested("[a ", "]", core="b", head="id x = ")
    yield "templates-variable", nested("A<", ">", core="int", tail=" a;")
    yield "templates-function", nested("A<", ">", core="int", tail=" f();")
    yield "templates-base", nested("A<", ">", core="int", head="class C : ", tail=" {};")
    yield "templates-parameter", nested("A<", ">", core="int", head="void f(", tail=" a);")
    yield "templates-alias", nested("A<", ">", core="int", head="using T = ")
    yield "templates-expression", nested("A<", ">", core="int", head="int a = ", tail="::b;")
    yield "templates-enumerator", nested("A<", ">", core="int", head="enum E { A = ", tail="::b };")
    yield "templates-class-name", nested("A<", ">", core="int", head="class ", tail=" {};")
    yield "templates-row", repeated("A<int>::", "", "B a;\n")
    yield "templates-arguments", repeated("int, ", "A<", "int> a;\n")
    yield "templates-head", nested("template <", "> class", core="class T", tail=" A;")
    yield "templates-heads", repeated("template <class T> ", "", "class A;\n")
    yield "templates-heads-function", repeated("template <class T> ", "", "void f();\n")
    yield "templates-head-parameters", numbered("class T{i}, ", "template <", "class Z> class A;\n")
    yield "templates-defaults", nested("template <class T = A<", ">>", core="int", tail=" class X;")
    yield "requires", nested("requires(", ")", core="true", head="template <class T> ",
                             tail=" void f();")
    yield "requires-and", repeated("A<T> && ", "template <class T> requires ",
                                   "B<T> void f();\n")
    yield "concept-and", repeated("A<T> && ", "template <class T> concept C = ", "B<T>;\n")
    yield "concept-parentheses", nested("(", ")", core="A<T>", head="template <class T> concept C = ")
    yield "concept-requires", nested("requires { ", " }", core="a;",
                                     head="template <class T> concept C = ")
    yield "function-pointer-parameters", nested("void (*f)(", ")", core="int", head="void g(",
                                                tail=");")
    yield "function-pointer-unnamed", nested("void (*)(", ")", core="int", head="void g(", tail=");")
    yield "function-pointer-variable", nested("void (*f)(", ")", core="int")
    yield "function-pointer-typedef", nested("void (*f)(", ")", core="int", head="typedef ")
    yield "function-pointer-result", nested("(*f(", "))(int)", core="int", head="int ")
    yield "function-pointer-block", nested("void (^f)(", ")", core="int", head="void g(", tail=");")
    yield "function-type-argument", nested("A<void(", ")>", core="int", tail=" a;")
    yield "function-parameters", nested("int a(", ")", core="int")
    yield "function-parameters-row", numbered("int a{i}, ", "void f(", "int z);\n")
    yield "declarators-row", numbered("a{i}, ", "int ", "z;\n")
    yield "declarators-star", repeated("*", "int ", "a;\n")
    yield "declarators-star-function", repeated("*", "int ", "f();\n")
    yield "declarators-const", repeated("const ", "", "int a;\n")
    yield "declarators-reference", repeated("&", "int ", "a;\n")
    yield "lambdas", nested("[]{ auto x = ", "; }", head="auto f = ")
    yield "lambdas-call", nested("f([] { return ", "; })", head="int x = ")
    yield "lambdas-arguments", nested("f([](int a) { g", "; })", core="()", head="int x = ")
    yield "conditionals", nested("#if A\n", "#endif\n", core="int b;\n", tail="int c;")
    yield "conditionals-dropped", nested("#if 0\n", "#endif\n", core="int b;\n", tail="int c;")
    yield "conditionals-else", nested("#if A\n#else\n", "#endif\n", core="int b;\n", tail="int c;")
    yield "conditionals-elif", repeated("#elif B\nint b;\n", "#if A\n", "#endif\n")
    yield "conditionals-elif-zero", repeated("#elif 0\nint b;\n", "#if 0\n", "#endif\n")
    yield "conditionals-else-row", repeated("#else\n", "#if A\n", "#endif\n")
    yield "conditionals-row", repeated("#if 0\n#else\nint a;\n#endif\n")
    yield "words-int", repeated("int ")
    yield "words-int-closed", repeated("int ", "", "a;\n")
    yield "words-name", repeated("a ")
    yield "words-name-closed", repeated("a ", "", ";\n")
    yield "words-struct", repeated("struct ")
    yield "words-class-names", repeated("class A ")
    yield "words-static", repeated("static ", "", "int a;\n")
    yield "words-extern", repeated("extern ")
    yield "words-virtual", repeated("virtual ")
    yield "words-template", repeated("template ")
    yield "words-typename", repeated("typename ")
    yield "words-typedef", repeated("typedef ")
    yield "words-unsigned", repeated("unsigned ")
    yield "words-friend", repeated("friend ")
    yield "words-using", repeated("using ")
    yield "words-operator", repeated("operator ")
    yield "words-enum", repeated("enum ")
    yield "words-const", repeated("const ")
    yield "words-auto", repeated("auto ")
    yield "words-decltype", nested("decltype(", ")", tail=" a;")
    yield "words-tilde", repeated("~")
    yield "words-noexcept", nested("noexcept(", ")", core="true", head="void f() ")
    yield "words-macro-names", repeated("MACRO\n")
    yield "words-commas", repeated("a, ")
    yield "words-semicolons", repeated(";")
    yield "words-equal", repeated("= ")
    yield "words-number", repeated("1 ")
    yield "words-string", repeated('"a" ')
    yield "words-string-value", repeated('"a" ', "char *s = ", ";\n")
    yield "scopes-row", repeated("a::", "int ", "b;\n")
    yield "scopes-function", repeated("a::", "void ", "f() {}\n")
    yield "scopes-only", repeated("a::")
    yield "scopes-marks", repeated("::")
    yield "scopes-using", repeated("a::", "using ", "b;\n")
    yield "initializer-list", repeated("a(1), ", "A::A() : ", "b(2) {}\n")
    yield "bases", repeated("A, ", "class B : ", "C {};\n")
    yield "namespaces", nested("namespace a {\n", "}\n", core="int b;\n", tail="")
    yield "namespaces-named", numbered("namespace a{i} {\n")
    yield "namespaces-qualified", repeated("a::", "namespace ", "b { int c; }\n")
    yield "classes", nested("class a {\n", "};\n", core="int b;\n", tail="")
    yield "classes-members", nested("class a { int m; void f();\n", "};\n", core="", tail="")
    yield "classes-functions", nested("class a { void f() {\n", "} };\n", core="", tail="")
    yield "structs-declarator", nested("struct a {\n", "} b;\n", core="int c;\n", tail="")
    yield "structs-anonymous", nested("struct {\n", "} b;\n", core="int c;\n", tail="")
    yield "structs-variable", nested("struct {\n", "} b = {1};\n", core="int c;\n", tail="")
    yield "enums-nested", nested("enum a {\n", "};\n", core="b", tail="")
    yield "extern-c", nested('extern "C" {\n', "}\n", core="int b;\n", tail="")
    yield "closings-parenthesis", repeated(")")
    yield "closings-brace", repeated("}")
    yield "closings-brace-semicolon", repeated("};\n")
    yield "closings-bracket", repeated("]")
    yield "closings-angle", repeated(">")
    for name, piece in UNCLOSED_C:
        yield "unclosed-" + name, repeated(piece)
        yield "unclosed-" + name + "-lines", repeated(piece + "\n")
    yield "members-million", numbered("int a{i};\n", "struct S {\n", "};\n")
    yield "enumerators", numbered("A{i},\n", "enum E {\n", "};\n")
    yield "functions", numbered("int f{i}(int a) { return a; }\n")
    yield "macros", numbered("#define M{i} {i}\n")
    yield "macro-lines", repeated("a \\\n", "#define M ", "b\nint c;\n")
    yield "macro-calls", repeated("M(a, b)\n")
    yield "macro-calls-function", repeated("M(a, b) {}\n")
    yield "comments-row", repeated("/* a */ ")
    yield "comments-nested", nested("/* ", " */", core="a", tail="\nint b;")
    yield "identifier", repeated("a", "int ", ";\n")
    yield "number", repeated("1", "int a = ", ";\n")
    yield "number-quotes", repeated("1'", "int a = ", "1;\n")
    yield "one-string", repeated("a", 'char *s = "', '";\n')
    yield "backslashes", repeated("\\\n")
    yield "backslashes-row", repeated("\\")
    yield "hashes", repeated("#")
    yield "hashes-lines", repeated("#\n")
    yield "ats", repeated("@")
    yield "quotes", repeated("'")
    yield "blanks", repeated(" ", "int a;", "int b;\n")
    yield "nul-bytes", repeated("\0", "int a;\n", "\nint b;\n")
    yield "carriage-returns", repeated("int a;\r")
    yield "carriage-returns-comments", repeated("// a\r")
    yield "carriage-returns-defines", repeated("#define A\r")
    yield "carriage-returns-conditionals", repeated("#if 0\r#endif\r")
    yield "carriage-returns-includes", repeated("#include <a>\r")
    yield "carriage-returns-strings", repeated("\"a\\\r")
    yield "stars", repeated("/* * ")
    yield "stars-long", repeated("*", "/*", "/ int a;\n")
    yield "stars-unclosed", repeated("*", "/*", " int a;\n")
    yield "comment-lines", repeated("// a\n")
    yield "comment-unfinished", repeated("// a")
    yield "include-unfinished", repeated("#include ")
    yield "macro-eater-unclosed", repeated("NS_SWIFT_NAME(")
    yield "macro-eater-unclosed-lines", repeated("_LIBCPP_A(\n")
    yield "macro-eater-nested", nested("(", ")", head="NS_SWIFT_NAME", tail=" int a;")
    yield "identifiers-long", repeated("_LIBCPP_")
    yield "bytes-high", repeated("\xff", "int a;\n", "\nint b;\n")


UNCLOSED_C = [
    ("angle", "A<"), ("angle-int", "A<int "), ("angle-comma", "A<b, "), ("angle-scope", "A<b>::c<"),
    ("array", "int a["), ("array-one", "a["), ("class-base", "class A : B<"),
    ("class", "class A {"), ("class-head", "class A : "), ("namespace", "namespace a {"),
    ("comparison", "a < b,"), ("comparison-call", "f(a < b"),
    ("parenthesis-value", "int a = (;"), ("parenthesis-call", "int a = f(;"),
    ("template", "template <"), ("template-class", "template <class T"),
    ("template-class-value", "template <class T = A<"),
    ("call", "f("), ("call-value", "int a = f("), ("function", "void f("), ("function-int", "int f(int "),
    ("function-pointer", "void (*f)("), ("parameter-pointer", "void f(void (*g)("),
    ("parenthesis", "("), ("brace", "{"), ("bracket", "["), ("attribute", "[["),
    ("brace-value", "int a = {"), ("brace-value-end", "int a = {;"), ("brace-function", "void f() {"),
    ("enum", "enum E {"), ("enum-value", "enum E { A = ("), ("enumerator-value", "A = ("),
    ("property", "@property("), ("interface", "@interface A"), ("interface-category", "@interface A ("),
    ("interface-protocol", "@interface A <"), ("protocol", "@protocol A <"),
    ("implementation", "@implementation A {"),
    ("method", "- (void)a:("), ("method-result", "- ("), ("message", "[a b:"), ("selector", "@selector("),
    ("string", '"'), ("string-name", 'a "'), ("character", "'"), ("comment", "/*"), ("comment-star", "/**"),
    ("if-zero", "#if 0\n"), ("if", "#if A\n"), ("ifdef", "#ifdef A\n"), ("else", "#if A\n#else\n"),
    ("elif", "#if 0\n#elif 0\n"), ("define", "#define M("), ("define-comment", "#define M /*\n"),
    ("define-line", "#define M \\\n"),
    ("declspec", "__declspec("), ("attribute-word", "__attribute__(("), ("availability", "API_AVAILABLE("),
    ("assembler", "__asm__("), ("asm-brace", "asm {"), ("decltype", "decltype("), ("noexcept", "void f() noexcept("),
    ("sizeof", "sizeof("), ("static-assert", "static_assert("), ("typeof", "__typeof__("),
    ("cast", "(int"), ("static-cast", "static_cast<"), ("lambda", "[&]("), ("lambda-value", "auto f = []("),
    ("ternary", "a ?"), ("ternary-value", "int a = b ?"), ("operator", "operator("),
    ("requires", "requires ("), ("requires-brace", "requires {"), ("concept", "template <class T> concept C = ("),
    ("extern", 'extern "C" {'), ("using", "using a = A<"), ("typedef", "typedef A<"), ("typedef-call", "typedef void (*f)("),
    ("constructor", "A::A() : a("), ("throw", "void f() throw("), ("raw-string", 'R"('),
    ("alignas", "alignas("), ("ns-enum", "typedef NS_ENUM("), ("ns-options", "NS_OPTIONS("), ("bitfield", "int a : ("),
]


def swift_families():
    yield "parentheses", nested("(", ")", head="let a = ", tail="")
    yield "parentheses-statement", nested("(", ")", tail="")
    yield "calls", nested("f(", ")", head="let a = ", tail="")
    yield "calls-labels", nested("f(a: ", ")", head="let a = ", tail="")
    yield "calls-row", repeated("(1)", "let a = f", "\n")
    yield "calls-chain", repeated(".f(1)", "let a = b", "\n")
    yield "closures", nested("{ ", " }", head="let a = ", tail="")
    yield "closures-call", nested("f { ", " }", head="let a = ", tail="")
    yield "closures-arguments", nested("f { a in ", " }", head="let a = ", tail="")
    yield "closures-typed", nested("{ (a: Int) -> Int in ", " }", head="let a = ", tail="")
    yield "closures-row", repeated("{ 1 }", "let a = f ", "\n")
    yield "closures-in-call", nested("f(a: { ", " })", head="let a = ", tail="")
    yield "arrays", nested("[", "]", head="let a = ", tail="")
    yield "arrays-elements", nested("[1, ", "]", head="let a = ", tail="")
    yield "arrays-row", repeated("1, ", "let a = [", "1]\n")
    yield "dictionaries", nested("[1: ", "]", head="let a = ", tail="")
    yield "dictionaries-keys", nested("[", ": 1]", head="let a = ", tail="")
    yield "dictionaries-row", repeated("1: 2, ", "let a = [", "1: 2]\n")
    yield "tuples", nested("(1, ", ")", head="let a = ", tail="")
    yield "subscripts", nested("a[", "]", head="let b = ", tail="")
    yield "ternaries", repeated("a ? b : ", "let x = ", "c\n")
    yield "operators", repeated("1 + ", "let x = ", "1\n")
    yield "operators-prefix", repeated("- ", "let x = ", "1\n")
    yield "operators-less", repeated("a < ", "let x = ", "1\n")
    yield "optional-chain", repeated("?.a", "let x = b", "\n")
    yield "try", repeated("try ", "let x = ", "1\n")
    yield "casts", repeated(" as A", "let x = a", "\n")
    yield "types-generic", nested("A<", ">", core="Int", head="let a: ", tail="")
    yield "types-array", nested("[", "]", core="Int", head="let a: ", tail="")
    yield "types-dictionary", nested("[Int: ", "]", core="Int", head="let a: ", tail="")
    yield "types-tuple", nested("(", ")", core="Int", head="let a: ", tail="")
    yield "types-function", nested("(", ") -> Int", core="Int", head="let a: ", tail="")
    yield "types-arrows", repeated("(Int) -> ", "let a: ", "Int\n")
    yield "types-optional", repeated("?", "let a: Int", "\n")
    yield "types-names", repeated("A.", "let a: ", "B\n")
    yield "types-parameter", nested("A<", ">", core="Int", head="func f(a: ", tail=") {}")
    yield "types-parameter-array", nested("[", "]", core="Int", head="func f(a: ", tail=") {}")
    yield "types-parameter-function", nested("(", ") -> Int", core="Int", head="func f(a: ",
                                             tail=") {}")
    yield "types-result", nested("A<", ">", core="Int", head="func f() -> ", tail=" {}")
    yield "types-expression", nested("A<", ">", core="Int", head="let a = ", tail="()")
    yield "types-extension", nested("A<", ">", core="Int", head="extension ", tail=" {}")
    yield "types-base", nested("A<", ">", core="Int", head="class B: ", tail=" {}")
    yield "patterns", nested("(", ")", core="a", head="let ", tail=" = b")
    yield "patterns-for", nested("(", ")", core="a", head="for ", tail=" in b {}")
    yield "patterns-case", nested(".a(", ")", core="let b", head="if case ", tail=" = c {}")
    yield "generics-row", numbered("T{i}, ", "func f<", "Z>() {}\n")
    yield "parameters-row", numbered("a{i}: Int, ", "func f(", "z: Int) {}\n")
    yield "braces", nested("{", "}", core="", tail="")
    yield "classes", nested("class A {\n", "}\n", core="let a = 1\n", tail="")
    yield "structs-functions", nested("struct A { func f() {\n", "} }\n", core="", tail="")
    yield "functions-nested", nested("func f() {\n", "}\n", core="", tail="")
    yield "extensions", nested("extension A.B {\n", "}\n", core="", tail="")
    yield "enums", nested("enum A {\n", "}\n", core="case a\n", tail="")
    yield "enums-cases", numbered("case a{i}\n", "enum A {\n", "}\n")
    yield "if", nested("if a {\n", "}\n", core="", tail="")
    yield "if-else", repeated("else if a {}\n", "if a {}\n", "\n")
    yield "switch", nested("switch a { case 1:\n", "}\n", core="b\n", tail="")
    yield "conditionals", nested("#if A\n", "#endif\n", core="let a = 1\n", tail="")
    yield "comments", nested("/* ", " */", core="a", tail="\nlet b = 1")
    yield "strings-interpolation", nested('"\\(', ')"', core="a", head="let a = ", tail="")
    yield "strings-interpolation-row", repeated("\\(a)", 'let a = "', '"\n')
    yield "strings-interpolation-parentheses", nested("(", ")", core="a", head='let a = "\\(',
                                                      tail=')"')
    yield "strings-multiline", repeated("a\n", 'let a = """\n', '"""\n')
    yield "attributes", repeated("@a ", "", "func f() {}\n")
    yield "attributes-arguments", nested("@available(", ")", core="iOS 1", tail=" func f() {}")
    yield "carriage-returns", repeated("func f() {}\r")
    yield "carriage-returns-comments", repeated("// a\r")
    yield "functions", numbered("func f{i}(a: Int) -> Int { return a }\n")
    yield "words-let", repeated("let ")
    yield "words-name", repeated("a ")
    yield "words-func", repeated("func ")
    yield "words-class", repeated("class ")
    yield "words-public", repeated("public ")
    yield "words-number", repeated("1 ")
    yield "words-point", repeated(".")
    yield "words-comma", repeated(",")
    yield "words-mark", repeated("?")
    yield "words-exclamation", repeated("!")
    yield "words-minus", repeated("-")
    yield "words-slash", repeated("/ ")
    yield "words-hash", repeated("#")
    yield "words-at", repeated("@")
    yield "closings-parenthesis", repeated(")")
    yield "closings-brace", repeated("}")
    yield "closings-bracket", repeated("]")
    yield "closings-angle", repeated(">")
    for name, piece in UNCLOSED_SWIFT:
        yield "unclosed-" + name, repeated(piece)
        yield "unclosed-" + name + "-lines", repeated(piece + "\n")


UNCLOSED_SWIFT = [
    ("parenthesis", "("), ("bracket", "["), ("brace", "{"), ("angle", "A<"), ("call", "f("),
    ("call-value", "let a = f("), ("call-label", "f(a: "), ("array", "let a = ["), ("dictionary", "[1: "),
    ("array-elements", "[1, "), ("tuple", "(1, "), ("closure", "f { "), ("closure-value", "let a = { "),
    ("closure-arguments", "{ (a: Int"), ("type", "let a: A<"), ("type-array", "let a: ["),
    ("type-function", "let a: ("), ("comparison", "a < b, "), ("function", "func f("),
    ("function-parameter", "func f(a: Int"), ("function-generic", "func f<"), ("class", "class A {"),
    ("class-base", "class A: B<"), ("extension", "extension A<"), ("enum", "enum A { case a("),
    ("subscript", "a["), ("ternary", "a ? "), ("string", '"'), ("string-value", 'let a = "'),
    ("interpolation", '"\\('), ("string-multiline", '"""'), ("raw-string", '#"'),
    ("raw-string-multiline", '#"""'), ("comment", "/*"), ("regex", "/a"), ("regex-value", "let a = /b"),
    ("regex-extended", "#/"), ("attribute", "@available("), ("if", "if a {"), ("if-parenthesis", "if ("),
    ("conditional", "#if A\n"), ("conditional-else", "#else\n"), ("switch", "switch a {"), ("backtick", "`"),
    ("get", "var a: Int { get {"), ("operator-brace", "var a: Int {"), ("key-path", "\\a["),
]


def python_families():
    yield "parentheses", nested("(", ")", head="a = ", tail="")
    yield "parentheses-statement", nested("(", ")", tail="")
    yield "brackets", nested("[", "]", head="a = ", tail="")
    yield "braces", nested("{", "}", head="a = ", tail="")
    yield "calls", nested("f(", ")", head="a = ", tail="")
    yield "defaults", nested("(", ")", head="def f(a=", tail="): pass")
    yield "defaults-brackets", nested("[", "]", head="def f(a=", tail="): pass")
    yield "annotations", nested("A[", "]", core="int", head="def f(a: ", tail="): pass")
    yield "annotations-result", nested("A[", "]", core="int", head="def f() -> ", tail=": pass")
    yield "bases", nested("A(", ")", head="class C(", tail="): pass")
    yield "decorators", nested("f(", ")", head="@", tail="\ndef g(): pass")
    yield "decorators-row", repeated("@a\n", "", "def g(): pass\n")
    yield "lambdas", repeated("lambda: ", "a = ", "1\n")
    yield "ternaries", repeated("a if b else ", "x = ", "c\n")
    yield "parameters-row", numbered("a{i}, ", "def f(", "z): pass\n")
    yield "bases-row", repeated("A, ", "class C(", "B): pass\n")
    yield "classes-one-line", repeated("class A: ")
    yield "classes-indented", lambda n: "".join(" " * i + "class A:\n" for i in range(n // 50))
    yield "functions-indented", lambda n: "".join(" " * i + "def f():\n" for i in range(n // 50))
    yield "if-indented", lambda n: "".join(" " * i + "if a:\n" for i in range(n // 50))
    yield "blanks", repeated(" ", "", "def f(): pass\n")
    yield "tabs", repeated("\t", "", "def f(): pass\n")
    yield "blank-lines", repeated("\n", "def f(): pass\n", "def g(): pass\n")
    yield "blank-lines-indented", repeated("    \n", "class A:\n", "    def f(): pass\n")
    yield "functions", numbered("def f{i}(a):\n    return a\n")
    yield "comments", repeated("# a\n")
    yield "interpolations", nested("f'{", "}'", core="a", head="a = ", tail="")
    yield "strings-row", repeated("'a' ", "a = ", "\n")
    yield "string-triple", repeated("a\n", 'a = """\n', '"""\n')
    yield "carriage-returns", repeated("def f(): pass\r")
    yield "carriage-returns-comments", repeated("# a\r")
    yield "continuations", repeated("\\\n", "a = 1", "\n")
    yield "words-def", repeated("def ")
    yield "words-class", repeated("class ")
    yield "words-name", repeated("a ")
    yield "words-minus", repeated("-")
    yield "words-arrow", repeated("->")
    yield "words-colon", repeated(":")
    yield "words-at", repeated("@")
    yield "closings-parenthesis", repeated(")")
    yield "closings-bracket", repeated("]")
    yield "closings-brace", repeated("}")
    for name, piece in UNCLOSED_PYTHON:
        yield "unclosed-" + name, repeated(piece)
        yield "unclosed-" + name + "-lines", repeated(piece + "\n")


UNCLOSED_PYTHON = [
    ("parenthesis", "("), ("bracket", "["), ("brace", "{"), ("call", "f("), ("function", "def f("),
    ("function-default", "def f(a=("), ("function-annotation", "def f(a: A["), ("class", "class A("),
    ("class-base", "class A(B["), ("decorator", "@a("), ("string", '"'), ("apostrophe", "'"),
    ("string-triple", '"""'), ("apostrophe-triple", "'''"), ("docstring", 'def f():\n    """'),
    ("prefixed", "r'"), ("interpolation", "f'{"), ("continuation", "a \\"), ("lambda", "lambda "),
]

LANGUAGES = [("c", ".cc", c_families), ("swift", ".swift", swift_families),
             ("python", ".py", python_families)]


def families():
    """Every family as (name, suffix, maker); the maker gives the input of a size as text."""
    for language, suffix, made in LANGUAGES:
        for name, maker in made():
            yield f"{language}/{name}", suffix, maker


def run(program, path, limit, memory):
    """Seconds of processor time, peak MiB and how the run ended ("" for well)."""
    def limits():
        resource.setrlimit(resource.RLIMIT_AS, (memory, memory))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        resource.setrlimit(resource.RLIMIT_CPU, (limit, limit + 1))
    child = subprocess.Popen([program, path], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                             stdin=subprocess.DEVNULL, preexec_fn=limits)
    _, status, usage = os.wait4(child.pid, 0)
    child.returncode = 0
    seconds = usage.ru_utime + usage.ru_stime
    end = ""
    if os.WIFSIGNALED(status):
        number = os.WTERMSIG(status)
        end = "over time" if number in (signal.SIGXCPU, signal.SIGKILL) else f"signal {number}"
    elif os.WEXITSTATUS(status) != 0:
        end = f"status {os.WEXITSTATUS(status)}"
    return seconds, usage.ru_maxrss / 1024, end


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("words", nargs="*", help="only families with one of these in their name")
    parser.add_argument("-n", type=int, default=25000, help="the first of the three sizes")
    parser.add_argument("--seconds", type=int, default=20, help="the most that one run may take")
    parser.add_argument("--gib", type=float, default=8, help="address space of one run")
    parser.add_argument("--all", action="store_true", help="show the linear families too")
    options = parser.parse_intermixed_args()
    program = os.path.abspath(options.program)
    sizes = [options.n, 2 * options.n, 4 * options.n]
    print("%-46s %8s %8s %8s %8s %7s" % ("family", *("n=%d" % n for n in sizes), "MiB", "growth"))
    steep = 0
    with tempfile.TemporaryDirectory() as folder:
        for name, suffix, maker in families():
            if options.words and not any(word in name for word in options.words):
                continue
            times, peak, end = [], 0, ""
            for size in sizes:
                path = os.path.join(folder, "input" + suffix)
                with open(path, "w", encoding="latin-1", newline="") as file:
                    file.write(maker(size))
                seconds, mib, end = run(program, path, options.seconds, int(options.gib * 2**30))
                times.append(seconds)
                peak = max(peak, mib)
                if end:
                    break
            growth = times[-1] / max(times[-2], 0.01) if len(times) > 1 else 0.0
            bad = bool(end) or (growth > 3.2 and times[-1] > 0.1)
            steep += bad
            cells = ["%.2f" % t for t in times] + ["-"] * (3 - len(times))
            if bad or options.all:
                print("%-46s %8s %8s %8s %8d %7.1f  %s" % (name, *cells, peak, growth, end),
                      flush=True)
    print(f"{steep} families grow faster than their input or end badly")
    return 0


if __name__ == "__main__":
    sys.exit(main())
