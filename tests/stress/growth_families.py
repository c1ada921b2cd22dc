# SPDX-License-Identifier: MIT
"""Families of nested, repeated and unclosed input: those of Swift and Python, and the list of all."""
from growth_c_families import body_families, c_families
from growth_macro_families import conditional_families, macro_families
from growth_shapes import nested, numbered, repeated


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
    yield "actors", nested("actor A {\n", "}\n", core="", tail="")
    yield "protocols-nested", nested("protocol A {\n", "}\n", core="", tail="")
    yield "attributes-open", repeated("@a ")
    yield "attributes-arguments-row", repeated("@a(b) ", "", "func f() {}\n")
    yield "modifiers-mixed", repeated("public final static ")
    yield "modifiers-mixed-closed", repeated("public final static ", "", "func f() {}\n")
    yield "modifiers-in-enum", repeated("public indirect ", "enum E { ", "case a }\n")
    yield "modifiers-set", repeated("private(set) ", "", "var a: Int\n")
    yield "modifiers-unowned", repeated("unowned(safe) ")
    yield "raw-string-hashes", lambda n: "let a = " + "#" * n + '"x"' + "#" * n + "\n"
    yield "raw-string-hashes-unclosed", lambda n: "let a = " + "#" * n + '"x"\n'
    yield "raw-string-interpolation", nested('#"\\#(', ')"#', core="a", head="let a = ", tail="")
    yield "regex-extended-hashes", lambda n: "let a = " + "#" * n + "/x/" + "#" * n + "\n"
    yield "regex-groups", nested("(", ")", core="a", head="let a = /", tail="/")
    yield "conditionals-elseif", repeated("#elseif A\n", "#if A\n", "#endif\n")
    yield "conditionals-stray-endif", repeated("#endif\n")
    yield "key-paths", repeated(".a", "let a = \\A", "\n")
    yield "closures-captures", nested("{ [a] in ", " }", head="let a = ", tail="")
    yield "closures-trailing-row", repeated(" b: { 1 }", "let a = f { 1 }", "\n")
    yield "where-row", numbered("T{i}: A, ", "func f<T>() where ", "Z: B {}\n")
    yield "bases-row", numbered("A{i}, ", "class B: ", "C {}\n")
    yield "cases-row", numbered("a{i}, ", "enum A { case ", "z }\n")
    yield "imports", numbered("import A{i}\n")
    yield "imports-path", repeated("A.", "import ", "B\n")
    yield "guard", nested("guard a else {\n", "}\n", core="", tail="")
    yield "do-catch", nested("do {\n", "} catch {}\n", core="", tail="")
    yield "operators-run", repeated("+-", "let a = b ", " c\n")
    yield "operators-dots", repeated(".+", "let a = b ", " c\n")
    yield "operators-question-marks", repeated("?", "let a = b", "\n")
    yield "operators-exclamation-marks", repeated("!", "let a = b", "\n")
    yield "operators-declared", repeated("+", "func ", "(a: A) {}\n")
    yield "operators-angles", repeated("<", "let a = b ", " c\n")
    yield "await", repeated("await ", "let x = ", "1\n")
    yield "in-out", repeated("&", "f(", "a)\n")
    yield "macros", nested("#f(", ")", head="let a = ", tail="")
    yield "tuples-empty", repeated("(), ", "let a = (", "())\n")
    yield "subscripts-declared", repeated("subscript(a: Int) -> Int { 1 }\n", "struct S {\n", "}\n")
    yield "identifier", repeated("a", "func ", "() {}\n")
    yield "string", repeated("a", 'let a = "', '"\n')
    yield "backticks", repeated("`a`.", "let b = ", "c\n")
    yield "semicolons", repeated(";")


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
    yield "comprehensions", nested("[a for a in ", "]", head="x = ", tail="")
    yield "comprehensions-row", repeated(" for a in b", "x = [a", "]\n")
    yield "dictionaries", nested("{1: ", "}", head="a = ", tail="")
    yield "subscripts", repeated("[1]", "a = b", "\n")
    yield "type-parameters", nested("A[", "]", core="T", head="def f[", tail="](): pass")
    yield "star-parameters", repeated("*a, ", "def f(", "b): pass\n")
    yield "async", repeated("async ", "", "def f(): pass\n")
    yield "statements-row", repeated("a; ", "", "\n")
    yield "classes-row", numbered("class A{i}: pass\n")
    yield "classes-semicolons", repeated("class A: pass; ")
    yield "strings-prefixed", repeated("rb'a' ", "a = ", "\n")
    yield "strings-triple-row", repeated("'''a''' ", "a = ", "\n")
    yield "quotes-mixed", repeated("'\"")
    yield "quotes-escaped", repeated("\\\\'", "a = '", "'\n")
    yield "interpolations-row", repeated("{a}", "a = f'", "'\n")
    yield "interpolations-same-quotes", nested("f'{", "}'", core="1", head="def f(a=", tail="): pass")
    yield "dedents", lambda n: "".join(
        " " * (40 - i % 40) + "if a:\n" for i in range(n)) + "def f(): pass\n"
    yield "tabs-and-blanks", repeated(" \tif a:\n\t b\n")
    yield "operators-not", repeated("not ", "a = ", "b\n")
    yield "operators-star", repeated("**", "a = b", "c\n")
    yield "identifier", repeated("a", "def ", "(): pass\n")
    yield "number", repeated("1", "a = ", "\n")
    yield "globals", repeated("a, ", "global ", "b\n")
    yield "imports", repeated("a, ", "import ", "b\n")
    yield "imports-parentheses", repeated("a, ", "from b import (", "c)\n")
    yield "match", nested("match (", ")", core="a", tail=":\n case 1: pass")


UNCLOSED_PYTHON = [
    ("parenthesis", "("), ("bracket", "["), ("brace", "{"), ("call", "f("), ("function", "def f("),
    ("function-default", "def f(a=("), ("function-annotation", "def f(a: A["), ("class", "class A("),
    ("class-base", "class A(B["), ("decorator", "@a("), ("string", '"'), ("apostrophe", "'"),
    ("string-triple", '"""'), ("apostrophe-triple", "'''"), ("docstring", 'def f():\n    """'),
    ("prefixed", "r'"), ("interpolation", "f'{"), ("continuation", "a \\"), ("lambda", "lambda "),
]

LANGUAGES = [("c", ".cc", c_families), ("c", ".cc", body_families), ("macros", ".cc", macro_families),
             ("conditionals", ".cc", conditional_families), ("swift", ".swift", swift_families),
             ("python", ".py", python_families)]


def families():
    """Every family as (name, suffix, maker); the maker returns the input of a size."""
    for language, suffix, made in LANGUAGES:
        for name, maker in made():
            yield f"{language}/{name}", suffix, maker
