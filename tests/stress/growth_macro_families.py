# SPDX-License-Identifier: MIT
"""Macros, conditionals and includes that repeat, nest or explode, as pairs of a name and a function of
the size. Without --thorough they are directives and words like any others."""
from growth_shapes import nested, numbered, repeated

# More words than this are not one declaration any more, and not one call of a macro.
LONG = 4000


def rows(piece, words, head="", tail=";\n", before=""):
    """Declarations as long as they can be: `piece` has so many `words`."""
    count = LONG // words
    return lambda n: before + (head + piece * count + tail) * max(1, n // count)


def doubling(depth, core="int x;", use="M{i}\n"):
    """A chain of macros, each of which is twice the one before, and uses of the last."""
    def text(n):
        chain = [f"#define M0 {core}\n"]
        chain += [f"#define M{i} M{i - 1} M{i - 1}\n" for i in range(1, depth + 1)]
        return "".join(chain) + use.replace("{i}", str(depth)) * n
    return text


def deep_calls(definition):
    """Calls of A within each other, 500 deep, one after the other."""
    return lambda n: definition + ("A(" * 500 + ")" * 500 + "\n") * max(1, n // 500)


def macro_families():
    yield "self", repeated("A\n", "#define A int x; A A\n")
    yield "self-call", repeated("A(b)\n", "#define A(x) int x; A(x) A(x)\n")
    yield "self-argument", nested("A(", ")", core="b", head="#define A(x) int x; x\n")
    yield "self-argument-twice", nested("A(", ")", core="b", head="#define A(x) int c; x x\n")
    yield "self-argument-rows", deep_calls("#define A(x) int c; x x\n")
    yield "self-argument-empty", deep_calls("#define A(x)\n")
    yield "self-argument-plain", deep_calls("#define A(x) a + x\n")
    yield "mutual", repeated("A B\n", "#define A int x; B B\n#define B int y; A A\n")
    yield "mutual-calls", repeated("A(A(B(c)))\n",
                                   "#define A(x) int x; B(B(x))\n#define B(x) int x; A(A(x))\n")
    yield "ring", lambda n: "".join(f"#define M{i} M{(i + 1) % n} int x;\n" for i in range(n)) + \
        "".join(f"M{i}\n" for i in range(n))
    yield "chain", lambda n: "#define M0 int x;\n" + \
        "".join(f"#define M{i + 1} M{i}\n" for i in range(n)) + f"M{n}\n" * n
    yield "doubling-8", doubling(8)
    yield "doubling-30", doubling(30)
    yield "doubling-60", doubling(60)
    yield "doubling-empty", doubling(30, core="")
    yield "doubling-braces", doubling(30, core="{")
    yield "doubling-pasted", lambda n: "#define P(a, b) a ## b\n#define Q(a) P(a, a)\n" + \
        "int Q(Q(Q(Q(Q(Q(Q(Q(Q(Q(Q(Q(x))))))))))));\n" * n
    yield "doubling-strings", lambda n: "#define S(a) #a #a\n#define T(a) S(a) S(a)\n" + \
        "const char *s = T(T(T(T(T(T(T(T(x))))))));\n" * n
    yield "doubling-arguments", lambda n: "#define D(x) x, x\n#define F(...) int a;\n" + \
        "F(D(D(D(D(D(D(D(D(D(D(x)))))))))))\n" * n
    yield "parameters-many", lambda n: "#define A(" + ", ".join(f"p{i}" for i in range(n)) + \
        ") int p0;\nA(" + "a, " * (n - 1) + "b)\n"
    yield "parameters-many-used", lambda n: "#define A(" + ", ".join(f"p{i}" for i in range(500)) + \
        ") int " + ", ".join(f"p{i}" for i in range(500)) + ";\n" + \
        ("A(" + "a, " * 499 + "b)\n") * max(1, n // 500)
    yield "variadic", lambda n: "#define A(...) int x; __VA_ARGS__\n" + "A(" + "int y; , " * n + "z)\n"
    yield "variadic-rows", rows("int y; , ", 4, head="A(", tail="z)\n",
                                before="#define A(...) __VA_ARGS__ __VA_ARGS__ __VA_ARGS__\n")
    yield "variadic-used-often", rows("y, ", 2, head="A(", tail="z)\n",
                                      before="#define A(...) int x; " + "__VA_ARGS__ " * 1000 + "\n")
    yield "argument-used-often", rows("y ", 1, head="A(", tail="z)\n",
                                      before="#define A(x) int x; " + "x " * 1000 + "\n")
    yield "argument-pasted-often", rows("y ", 1, head="A(", tail="z)\n",
                                        before="#define A(x) int x; " + "x ## x " * 1000 + "\n")
    yield "argument-quoted-often", rows("y ", 1, head="A(", tail="z)\n",
                                        before="#define A(x) int b; " + "#x " * 1000 + "\n")
    yield "argument-one-long-word", lambda n: "#define A(x) int x ## x ## _ ## x;\n" + \
        "A(" + "a" * n + ")\n"
    yield "pasted-long-words", lambda n: "#define A(x) int x ## x;\n" + \
        ("A(" + "a" * 5000 + ")\n") * max(1, n // 5000)
    yield "call-unclosed", repeated("A(", "#define A(x) int x;\n")
    yield "call-unclosed-lines", repeated("A(b\n", "#define A(x) int x;\n")
    yield "call-long-row", rows("b, ", 2, head="A(", tail=")\n", before="#define A(x)\n")
    yield "body-one-line", lambda n: "#define A " + "int x; " * n + "\nA\nA\n"
    yield "body-continued", lambda n: "#define A \\\n" + "int x; \\\n" * n + "\nA\nA\n"
    yield "body-long-used-often", lambda n: "#define A " + "int x; " * 2000 + "\n" + "A\n" * n
    yield "body-hashes", lambda n: "#define A(x) " + "# " * n + "x\nA(b)\n"
    yield "body-pastes", lambda n: "#define A(x) int x " + "## x " * 5000 + ";\n" + "A(b)\n" * n
    yield "body-strings", lambda n: "#define A int x; " + '"' * n + "\nA\n"
    yield "body-comments", lambda n: "#define A int x; " + "/* " * n + "\nA\n*/"
    yield "body-nul-bytes", lambda n: "#define A(x) int \0x\0;\nA(\0b\0)\n" * n
    yield "definitions", numbered("#define M{i}(a) int a;\nM{i}(b)\n")
    yield "definitions-empty", numbered("#define M{i}\nM{i} int a{i};\n")
    yield "definitions-of-one-name", numbered("#define M int a{i};\n", tail="M\n")
    yield "definitions-of-one-name-used", numbered("#define M int a{i};\nM\n")
    yield "definitions-undone", repeated("#define M int a;\nM\n#undef M\n")
    yield "definitions-of-words", repeated("#define int long\n#define if(x) while (x)\nint a;\n")
    yield "definitions-unfinished", repeated("#define\n#define (\n#define M(\n#define M(x\n")
    yield "definitions-blank-parameters", numbered("#define M{i}(,,,) int a;\nM{i}(,,,)\n")
    yield "empty-before-declaration", repeated("E ", "#define E\n", "int x;\n")
    yield "empty-in-declaration", repeated("E ", "#define E\nint x ", ";\n")
    yield "empty-call-in-declaration", repeated("E() ", "#define E()\nint x ", ";\n")
    yield "empty-call-rows", rows("E() ", 3, head="int x ", before="#define E()\n")
    yield "empty-call-in-class-head", repeated("E() ", "#define E()\nclass ", "A {};\n")
    yield "number-call-in-declaration", repeated("E() x ", "#define E() 1\nint ", ";\n")
    yield "expression-call-in-declaration", repeated("E(a) x ", "#define E(a) a + 1\nint ", ";\n")
    yield "expression-call-rows", rows("E(a) x ", 5, head="int ", before="#define E(a) a + 1\n")
    yield "braces-open", repeated("B\n", "#define B namespace a {\n")
    yield "braces-close", repeated("E\n", "#define E }\n")
    yield "braces-both", repeated("B int x; E\n", "#define B namespace a {\n#define E }\n")
    yield "braces-body", repeated("B int x; E\n", "#define B void f() {\n#define E }\n")
    yield "braces-class", repeated("B int x; E\n", "#define B class c {\n#define E };\n")
    yield "enumerators", numbered("A(a{i}) ", "#define A(x) x,\nenum E {\n", "};\n")
    yield "enumerators-doubling", lambda n: doubling(30, core="a,", use="")(0) + \
        "enum E {\n" + "M30\n" * n + "};\n"
    yield "unknown-before", repeated("API_EXPORT ", "", "int x;\n")
    yield "unknown-call-before", repeated("API_EXPORT(1) ", "", "int x;\n")
    yield "unknown-lines", repeated("API_BEGIN\n", "", "int x;\n")
    yield "unknown-call-lines", repeated("API_BEGIN(a, b)\n", "", "int x;\n")
    for name, head, piece, words, tail in LONG_DECLARATIONS:
        yield "long-" + name, rows(piece, words, head, tail)


# Declarations that are as long as one can be: a head, a piece of so many words, and an end.
LONG_DECLARATIONS = [
    ("unknown-before", "", "API_EXPORT ", 1, "int x;\n"),
    ("unknown-call-before", "", "API_EXPORT(1) ", 4, "int x;\n"),
    ("unknown-after", "int x ", "API_EXPORT ", 1, ";\n"),
    ("unknown-call-after", "int f() ", "API_EXPORT(1) ", 4, ";\n"),
    ("unknown-in-class-head", "class ", "API_EXPORT ", 1, "a {};\n"),
    ("unknown-call-in-class-head", "class ", "API_EXPORT(1) ", 4, "a {};\n"),
    ("names", "", "a ", 1, ";\n"),
    ("names-angles", "", "a < ", 2, ";\n"),
    ("names-angles-value", "int x = ", "a < ", 2, "b;\n"),
    ("names-angles-alias", "using x = ", "a < ", 2, "b;\n"),
    ("names-angles-typedef", "typedef ", "a < ", 2, "b;\n"),
    ("names-angles-class", "class a : ", "a < ", 2, "b {};\n"),
    ("names-angles-function", "void f(", "a < ", 2, ");\n"),
    ("names-angles-enum", "enum e { a = ", "a < ", 2, "b };\n"),
    ("names-angles-closed", "int x = ", "a < b > ", 4, "b;\n"),
    ("names-qualified", "int ", "a::", 2, "b;\n"),
    ("names-leading-scopes", "int ", "::a ", 2, "b;\n"),
    ("template-heads", "", "template <class A> ", 5, "class b;\n"),
    ("template-heads-open", "", "template <class A ", 4, "class b;\n"),
    ("template-parameters", "template <", "class A = b, ", 5, "class c> void f();\n"),
    ("template-constraints", "template <class A> requires ", "a<b> && ", 5, "c void f();\n"),
    ("template-concept", "template <class A> concept c = ", "a<b> && ", 5, "d;\n"),
    ("enum-parameters", "void f(", "enum a b, ", 4, "int c);\n"),
    ("enum-words", "enum ", "enum ", 1, "a;\n"),
    ("auto-words", "", "auto ", 1, "a;\n"),
    ("class-words", "", "class ", 1, "a;\n"),
    ("operator-words", "", "operator ", 1, "a;\n"),
    ("requires-words", "", "requires ", 1, "a;\n"),
    ("defaults", "void f(", "int a = b, ", 5, "int c);\n"),
    ("defaults-braces", "void f(", "int a = {}, ", 6, "int c);\n"),
    ("initializers", "int ", "a = b, ", 4, "c;\n"),
    ("initializers-calls", "int ", "a(b), ", 5, "c;\n"),
    ("initializers-braces", "int ", "a{b}, ", 5, "c;\n"),
    ("arrays", "int x", "[1]", 3, ";\n"),
    ("pointers", "int ", "*", 1, "a;\n"),
    ("pointer-groups", "int ", "(*a)", 4, "(int);\n"),
    ("bit-fields", "struct a { int ", "b : c, ", 4, "d : e; };\n"),
    ("tails", "struct a {} ", "b, ", 2, "c;\n"),
    ("attributes", "", "__attribute__((a)) ", 6, "int x;\n"),
    ("attributes-after", "int x ", "__attribute__((a)) ", 6, ";\n"),
    ("old-style", "int f(a, b) ", "int a; ", 3, "{}\n"),
    ("namespace-names", "namespace ", "a::", 2, "b {}\n"),
    ("friends", "class a { friend ", "class ", 1, "b; };\n"),
    ("methods", "@interface a\n- (void)", "a:(int)b ", 6, ";\n@end\n"),
    ("methods-types", "@interface a\n- (", "a b ", 2, ")c;\n@end\n"),
    ("properties", "@interface a\n@property (", "b, ", 2, "readonly) int c;\n@end\n"),
    ("properties-types", "@interface a\n@property () ", "A<B> ", 4, "c;\n@end\n"),
    ("interface-protocols", "@interface a <", "b, ", 2, "c>\n@end\n"),
]


def conditional_families():
    yield "deep-else", nested("#if A\n#else\n", "#endif\n", core="int a;\n", tail="")
    yield "deep-branches", nested("#if A\nint a;\n", "#else\nint b;\n#endif\n", core="", tail="")
    yield "deep-defines", nested("#ifdef A\n#define B\n", "#else\n#define C\n#endif\n", core="", tail="")
    yield "deep-zero", nested("#if 0\n#define B\n", "#endif\n", core="", tail="")
    yield "deep-unclosed", repeated("#if A\n#else\n")
    yield "deep-function", nested("#if A\nvoid f() {\n", "#else\n}\n#endif\n", core="", tail="")
    yield "unbalanced-open", repeated("#if A\nvoid f() {\n#else\nvoid g() {\n#endif\n}\n")
    yield "unbalanced-one", repeated("#if A\nnamespace a {\n#endif\n")
    yield "unbalanced-close", repeated("#if A\n}\n#else\n)\n#endif\n")
    yield "unbalanced-expression", repeated("#if A\n+ 1\n#else\n+ 2\n#endif\n", "int a = 1\n", ";\n")
    yield "elif-row", numbered("#elif A == {i}\nint a{i};\n", "#if 0\n", "#endif\n")
    yield "elif-row-unbalanced", numbered("#elif A == {i}\n{ int a{i};\n", "#if 0\n", "#endif\n")
    yield "condition-parentheses", nested("(", ")", core="A", head="#if ", tail="\nint a;\n#endif")
    yield "condition-not", repeated("!", "#if ", "A\nint a;\n#endif\n")
    yield "condition-minus", repeated("-", "#if ", "1\nint a;\n#endif\n")
    yield "condition-ternaries", repeated("A ? B : ", "#if ", "C\nint a;\n#endif\n")
    yield "condition-and", repeated("A && ", "#if ", "B\nint a;\n#endif\n")
    yield "condition-comments", repeated("/* a */", "#if ", "B\nint a;\n#endif\n")
    yield "condition-comments-open", repeated("#if A /* a\n")
    yield "condition-defined", repeated("defined(A) || ", "#if ", "B\nint a;\n#endif\n")
    yield "condition-calls", nested("F(", ")", core="A", head="#if ", tail="\nint a;\n#endif")
    yield "condition-continued", repeated("\\\n", "#if A ", "\nint a;\n#endif\n")
    yield "condition-sums", repeated("1 + ", "#if ", "1\nint a;\n#endif\n")
    yield "raw-strings", repeated('#if A\nauto a = R"b(\n#endif\n')
    yield "errors", repeated("#if A\n#error a\n#else\nint a;\n#endif\n")
    yield "includes-missing", numbered('#include "missing{i}.h"\n')
    yield "includes-missing-deep", numbered('#include "a/b/c/../../../missing{i}.h"\n')
    yield "includes-one-long", repeated("a/", '#include "', 'b.h"\n')
    yield "includes-dots", repeated("../", '#include "', 'b.h"\n')
    yield "includes-itself", repeated('#include "input.cc"\n')
    yield "includes-itself-spelled", lambda n: "".join(
        '#include "' + "./" * (i % 200) + 'input.cc"\n' for i in range(n))
