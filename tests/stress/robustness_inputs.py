# SPDX-License-Identifier: MIT
"""Tables of tests/stress/robustness.py: every input that is a text, and the output that it must give."""
import dataclasses
import os
import pathlib
import random
import resource
import struct
import sys
import typing
import zlib

from growth_families import families

DEEP = 100000  # of the large cases
QUICK = 20000  # of the quick ones
NOBODY = 65534

# A good file of a language with one tag.
GOOD = {
    ".c": lambda name: f"void {name}(void);\n",
    ".cc": lambda name: f"void {name}(void);\n",
    ".mm": lambda name: f"void {name}(void);\n",
    ".swift": lambda name: f"func {name}() {{}}\n",
    ".py": lambda name: f"def {name}(): pass\n",
}


@dataclasses.dataclass
class Case:
    """A row: the `kind` of run, and what it has to show."""
    name: str
    kind: str
    suffix: str = ".c"
    text: typing.Callable = None  # makes the input
    tags: tuple = ()  # names that must have a tag
    absent: tuple = ()  # names that must have none
    counts: tuple = ()  # pairs of a piece of a line and how often the output has it
    seconds: float = 30
    mib: float = 0  # the memory limit, 0 for the default
    large: bool = False
    arguments: tuple = ()
    messages: tuple = ()  # pairs of start and end of each line on standard error
    make: typing.Callable = None  # makes the path and returns it
    verb: str = "opening"  # "failed opening" or "failed reading"
    keeps_path: bool = False  # whether the message names the path twice as given
    user: int = None  # who runs the program
    needs_root: bool = False
    name_bytes: bytes = b""
    escaped: bytes = b""
    left: bytes = b""  # the tags file after a failure
    count: int = 0
    stderr: bytes = b""
    gib: float = 8
    limits: tuple = ()


# --- Depth and repetition: the families of growth_families.py -----------------------------------------------

# Families of which no case is deeper than this: the tag of a function names all scopes around it, so
# that the output itself grows with the square of the depth.
SIZES = {"c/classes-members": 3000}

# The families after which tags must be found: those that the rules read from beginning to end. After
# the others no tag is required: what is never closed may hide the rest of the file, a stray closing
# bracket ends a C file's tags, and what begins no declaration ends a Swift file's.
RESYNCHRONISES = {
    "c": """bodies bodies-defines parentheses-initializer parentheses-statement parentheses-enumerator
        parentheses-array-size parentheses-parameter parentheses-default parentheses-attribute calls
        calls-enumerator casts casts-enumerator casts-name casts-pointer static-cast
        static-cast-enumerator sizeof sizeof-enumerator ternaries ternaries-enumerator
        ternaries-left ternaries-parentheses operators-sum operators-sum-initializer operators-not
        operators-star braces-initializer braces-initializer-rows braces-function braces-block
        brackets-size brackets-row brackets-attribute templates-variable templates-function
        templates-base templates-parameter templates-alias templates-expression
        templates-class-name templates-row templates-arguments templates-head
        templates-head-parameters function-pointer-parameters function-pointer-unnamed
        function-pointer-variable function-pointer-typedef function-pointer-block
        function-parameters-row declarators-row declarators-star declarators-star-function lambdas
        lambdas-call conditionals conditionals-dropped conditionals-else conditionals-elif
        conditionals-elif-zero conditionals-else-row conditionals-row namespaces classes
        classes-members structs-anonymous structs-variable structs-declarator extern-c
        comments-row functions enumerators macros macro-lines identifier
        one-string blanks nul-bytes initializer-list bases words-semicolons words-static
        closings-brace conditionals-stray-endif raw-string-delimiter raw-string-parentheses
        raw-strings-row blocks blocks-in-messages array-literals dictionary-literals boxes
        selectors-long methods properties interfaces-row protocols-forward ends generic-selection
        statement-expressions attributes-row attributes-brackets-row alignas-row extern-c-row
        destructors pragmas bitfields unions-row typedefs-row friends macro-arguments
        macro-redefined""".split(),
    "swift": """parentheses calls calls-labels calls-row calls-chain closures closures-call
        closures-arguments closures-row closures-in-call arrays arrays-elements arrays-row
        dictionaries dictionaries-keys dictionaries-row tuples subscripts ternaries operators
        optional-chain types-generic types-array types-dictionary types-tuple types-function
        types-arrows types-optional types-names types-parameter types-parameter-array
        types-parameter-function types-result types-extension types-base patterns generics-row
        parameters-row classes functions-nested extensions comments strings-interpolation
        strings-interpolation-row strings-interpolation-parentheses strings-multiline attributes
        attributes-arguments functions conditionals enums-cases actors protocols-nested
        modifiers-mixed-closed modifiers-in-enum modifiers-set raw-string-hashes
        raw-string-interpolation regex-extended-hashes regex-groups conditionals-elseif key-paths
        closures-captures closures-trailing-row where-row bases-row cases-row imports imports-path
        operators-run operators-dots operators-declared await macros tuples-empty
        subscripts-declared identifier string backticks""".split(),
    "python": """parentheses parentheses-statement brackets braces calls defaults defaults-brackets
        annotations annotations-result bases decorators decorators-row lambdas ternaries
        parameters-row bases-row classes-one-line classes-indented functions-indented if-indented
        blank-lines blank-lines-indented functions comments strings-row string-triple
        closings-parenthesis closings-bracket closings-brace words-name words-minus words-colon
        words-at unclosed-bracket unclosed-brace unclosed-bracket-lines unclosed-brace-lines
        comprehensions comprehensions-row dictionaries subscripts type-parameters star-parameters
        async statements-row classes-row strings-prefixed strings-triple-row quotes-escaped
        interpolations-row interpolations-same-quotes dedents operators-not operators-star
        identifier number globals imports imports-parentheses match""".split(),
}

# Without --thorough, tags are found after all families of macros and conditionals but these, which
# leave something open or end with what begins no declaration.
LOST = {
    "macros": """variadic variadic-rows long-initializers-calls long-initializers-braces
        long-requires-words definitions-blank-parameters long-properties-types""".split(),
    "conditionals": """deep-unclosed deep-function elif-row-unbalanced raw-strings""".split(),
}

# With --thorough, tags are found after all families but these. Most of them leave open what hides the
# rest: a brace, a string, a comment, a conditional. An enumerator in a deep enum fills its line, so
# that the next tag is in it too.
LOST_THOROUGHLY = {
    "c": """requires words-template words-friend words-operator words-equal unclosed-brace
        unclosed-bracket unclosed-attribute unclosed-brace-value unclosed-brace-value-end
        unclosed-brace-function unclosed-enum unclosed-enum-value unclosed-comment
        unclosed-comment-star-lines unclosed-if-zero unclosed-else unclosed-elif
        unclosed-attribute-word unclosed-availability unclosed-asm-brace unclosed-static-assert
        unclosed-ternary-value unclosed-requires unclosed-requires-brace unclosed-ns-options stars
        stars-unclosed macro-eater-unclosed conditionals-stray-else
        conditionals-stray-elif bodies-unclosed bodies-unclosed-nested""".split(),
    "macros": [],
    "conditionals": "deep-unclosed deep-function elif-row-unbalanced raw-strings".split(),
    "swift": """enums words-point unclosed-enum unclosed-string unclosed-raw-string-multiline
        unclosed-comment""".split(),
    "python": [],
}


def has_tags_after(language, family, thorough):
    """Whether a declaration after the family must have a tag."""
    if thorough:
        lost = LOST_THOROUGHLY[language]
        return family not in lost and family.removesuffix("-lines") not in lost
    if language in LOST:
        return family not in LOST[language]
    return family in RESYNCHRONISES[language]


def family_cases(thorough):
    for name, suffix, maker in families():
        language, family = name.split("/")
        after = ("after",) if has_tags_after(language, family, thorough) else ()
        for size, group in ((QUICK, "depth/"), (DEEP, "deep/")):
            if size == DEEP and (name in SIZES or family.endswith("-lines")):
                continue  # The quick case is as deep, or another one is deep in one line.

            def text(maker=maker, suffix=suffix, size=min(size, SIZES.get(name, size))):
                return GOOD[suffix]("before") + maker(size) + "\n" + GOOD[suffix]("after")
            yield Case(group + name, "text", suffix, text, tags=("before", *after),
                       large=size == DEEP)

    def nested(piece, close, count, numbered=True):
        return "".join(piece.replace("{i}", str(i) if numbered else "") for i in range(count)) + \
            close * count
    yield Case("depth/c/namespaces-all-tagged", "text", ".cc",
               lambda: nested("namespace n{i} {\n", "}\n", 3000) + "void after(void);\n",
               tags=("n0", "n1500", "n2999", "after"), counts=((";\"\tn", 3000),))
    yield Case("depth/c/classes-all-tagged", "text", ".cc",
               lambda: nested("class c{i} {\n", "};\n", 3000) + "void after(void);\n",
               tags=("c0", "c1500", "c2999", "after"), counts=((";\"\tc", 3000),))
    yield Case("depth/swift/classes-all-tagged", "text", ".swift",
               lambda: nested("class c{i} {\n", "}\n", 3000) + "func after() {}\n",
               tags=("c0", "c1500", "c2999", "after"), counts=((";\"\tc", 3000),))
    yield Case("depth/python/classes-all-tagged", "text", ".py",
               lambda: "".join(" " * i + f"class c{i}:\n" for i in range(3000)) +
               "def after(): pass\n",
               tags=("c0", "c1500", "c2999", "after"), counts=((";\"\tc", 3000),))
    for suffix, opening in ((".c", "("), (".c", "{"), (".c", "int a = f("), (".swift", "let a = ["),
                            (".swift", "let a = {"), (".py", "def f(a=(")):
        shown = opening.split()[-1] + suffix
        yield Case(f"depth/small-address-space/{shown}", "small-memory", suffix,
                   lambda opening=opening: opening * DEEP, gib=1)
        yield Case(f"depth/small-stack/{shown}", "small-memory", suffix,
                   lambda opening=opening: opening * DEEP,
                   limits=((resource.RLIMIT_STACK, 1 << 20),))


# --- Size -------------------------------------------------------------------------------------------


def one_line(piece, size):
    # In Python blanks before a line end take the line end with them.
    text = piece * (size // len(piece))
    return text if piece.isspace() else text.rstrip()


def size_cases():
    def case(name, suffix, text, **more):
        return Case("size/" + name, "text", suffix, text, seconds=60, mib=4096, large=True, **more)
    mib100 = 100 * 2**20
    for name, suffix, piece, resumes in [
            ("c-declarations", ".c", "int abcdefgh(char c, int d); ", True),
            ("c-variable-names", ".c", "int abcdefghijkl = 12345; ", True),
            ("c-words", ".c", "abcdefghijklmnopqrstuvw ", False),
            ("c-blanks", ".c", " ", True),
            ("c-comments", ".c", "/* abcdefghi */ ", True),
            ("c-body", ".c", "{ a = b(c); } ", True),
            ("c-nul", ".c", "\0", True),
            ("objc-messages", ".mm", "[abcdefgh ijklm:12345]; ", False),
            ("objc-interfaces", ".mm", "@interface A - (void)b:(int)c; @end ", True),
            ("swift-declarations", ".swift", "let abcdefgh = 12345; ", True),
            ("swift-blanks", ".swift", " ", True),
            ("swift-calls", ".swift", "abcdefgh(12345); ", False),
            ("python-blanks", ".py", " ", True),
            ("python-statements", ".py", "abcdefgh = f(12345); ", True),
            ("python-definitions", ".py", "def abcdefgh(i): pass; ", True)]:
        def text(piece=piece, suffix=suffix):
            return GOOD[suffix]("before") + one_line(piece, mib100) + "\n" + GOOD[suffix]("after")
        yield case("one-line-" + name, suffix, text,
                   tags=("before", "after") if resumes else ("before",))
    for name, head, byte, tail in [("string", 'char *s = "', "a", '";'), ("number", "int a = ", "1", ";"),
                                   ("comment", "/*", "*", "*/"), ("line-comment", "//", "a", ""),
                                   ("condition", "#if ", "a", "\n#endif"), ("nul", "", "\0", "")]:
        def text(head=head, byte=byte, tail=tail):
            return "void before(void);\n" + head + byte * mib100 + tail + "\nvoid after(void);\n"
        yield case("one-token-" + name, ".c", text, tags=("before", "after"))
    for name, suffix, head, byte, tail in [
            ("string", ".swift", 'let s = "', "a", '"'), ("string", ".py", "s = '", "a", "'"),
            ("raw-string", ".swift", 'let s = #"', "a", '"#'), ("raw-string", ".cc", 'auto s = R"(', "a", ')";'),
            ("multiline-string", ".swift", 'let s = """\n', "a\n", '"""'),
            ("triple-string", ".py", 's = """', "a\n", '"""'),
            ("comment", ".swift", "/*", "*", "*/"), ("comment-lines", ".swift", "/*", "a\n", "*/"),
            ("line-comment", ".swift", "//", "a", ""), ("line-comment", ".py", "#", "a", ""),
            ("number", ".swift", "let a = ", "1", ""), ("number", ".py", "a = ", "1", ""),
            ("comment-lines", ".c", "/*", "a\n", "*/"), ("line-comment-continued", ".c", "//", "a\\\n", ""),
            ("string-continued", ".c", 'char *s = "', "a\\\n", '";'),
            ("string", ".mm", 'id s = @"', "a", '";')]:
        def text(suffix=suffix, head=head, byte=byte, tail=tail):
            return GOOD[suffix]("before") + head + byte * (20 * 2**20 // len(byte)) + tail + \
                "\n" + GOOD[suffix]("after")
        yield case(f"token-20-mb-{name}{suffix}", suffix, text, tags=("before", "after"))
    for suffix in (".c", ".swift", ".py"):
        for name, byte in (("line-ends", "\n"), ("carriage-returns", "\r"), ("tabs", "\t")):
            def text(suffix=suffix, byte=byte):
                return GOOD[suffix]("before") + byte * mib100 + "\n" + GOOD[suffix]("after")
            yield case(f"only-{name}{suffix}", suffix, text, tags=("before", "after"))
        yield case("random-20-mb" + suffix, suffix, lambda suffix=suffix: GOOD[suffix]("before").encode() +
                   b"\n" + random_bytes(20 * 2**20, 7), tags=("before",))
    for name, suffix, head, piece, tail in [
            ("array", ".swift", "let a = [", "1, ", "1]"), ("sum", ".swift", "let a = ", "b + ", "b"),
            ("dictionary", ".swift", "let a = [", '"b": 2, ', '"b": 2]'),
            ("call", ".swift", "let a = f(", "b: 1, ", "c: 2)"),
            ("array", ".c", "int a[] = {", "1, ", "1};"), ("sum", ".c", "int a = ", "b + ", "b;"),
            ("enumerator-sum", ".c", "enum E { A = ", "b + ", "b };"),
            ("strings", ".c", "const char *s = ", '"a" ', ";"),
            ("array", ".mm", "id a = @[", "@1, ", "@1];"), ("list", ".py", "a = [", "1, ", "1]"),
            ("default", ".py", "def f(a=[", "1, ", "1]): pass")]:
        def text(suffix=suffix, head=head, piece=piece, tail=tail):
            return GOOD[suffix]("before") + head + piece * (mib100 // len(piece)) + tail + "\n" + \
                GOOD[suffix]("after")
        yield case(f"one-expression-{name}{suffix}", suffix, text, tags=("before", "after"))
    long_name = "x" * (20 * 2**20)
    for suffix, text in ((".c", f"void {long_name}(void);\n"), (".cc", f"class {long_name} {{\n}};\n"),
                         (".mm", f"@interface {long_name}\n@end\n"), (".py", f"def {long_name}(): pass\n"), (".swift", f"func {long_name}() {{}}\n")):
        yield case("identifier-20-mb" + suffix, suffix,
                   lambda text=text, suffix=suffix: text + GOOD[suffix]("after"), tags=("after",),
                   counts=(("\nxxxxxxxx", 1),))
    million = 10**6

    def rows(piece, count=million):
        return "".join([piece % i for i in range(count)])
    yield case("million-functions-c", ".c", lambda: rows("int f%d(int a) { return a; }\n"),
               counts=((";\"\tf", million),))
    yield case("million-prototypes-c", ".c", lambda: rows("int f%d(int a);\n"),
               counts=(("\nf999999", 1),))
    yield case("million-functions-swift", ".swift", lambda: rows("func f%d(a: Int) { b() }\n"),
               counts=(("\nf999999", 1), ("\nf500000", 1)))
    yield case("million-functions-python", ".py", lambda: rows("def f%d(a): return a\n"),
               counts=(("\nf999999\t", 1), (";\"\tf", million + 2)))
    yield case("million-enumerators-c", ".c", lambda: "enum E {\n" + rows("A%d = 1,\n") + "};\n",
               tags=("A0", "A999999"), counts=((";\"\te", million),))
    yield case("million-enumerators-swift", ".swift",
               lambda: "enum E {\n" + rows("case a%d\n") + "}\n",
               tags=("a0", "a999999"), counts=((";\"\te", million),))
    yield case("macros-300000", ".c", lambda: rows("#define M%d(a) (a + 1)\n", 300000),
               tags=("M0", "M299999"))
    yield case("macro-of-a-million-lines", ".c",
               lambda: "#define M \\\n" + "  a = b; \\\n" * million + "  c\nvoid after(void);\n",
               tags=("M", "after"))
    yield case("million-members", ".c", lambda: "struct S {\n" + rows("int m%d;\n") + "};\n",
               tags=("m0", "m999999"))
    yield case("million-declarators", ".c", lambda: "int " + rows("a%d, ") + "z;\n",
               tags=("a0", "a999999", "z"))
    yield case("million-parameters", ".c", lambda: "void f(" + rows("int a%d, ", 300000) +
               "int z);\nvoid after(void);\n", tags=("after",))
    yield case("million-lines-carriage-return", ".c",
               lambda: "// a comment\rint a;\r" * 500000 + "void after(void);\r", tags=("after",))
    yield case("million-classes-python", ".py", lambda: rows("class C%d: pass\n"),
               tags=("C0", "C999999"), counts=((";\"\tc", million),))
    yield case("million-methods-objc", ".mm",
               lambda: "@interface A\n" + rows("- (void)m%d;\n") + "@end\nvoid after(void);\n",
               tags=("m0", "m999999", "after"))
    yield case("million-conditionals", ".c",
               lambda: rows("#if A%d\n#else\n#endif\n") + "void after(void);\n", tags=("after",))
    yield case("million-blank-macros", ".c", lambda: rows("M%d\n") + ";\nvoid after(void);\n")
    yield case("million-structs", ".c", lambda: rows("struct s%d { int a; };\n"),
               tags=("s0", "s999999"), counts=((";\"\ts", million), (";\"\tm", million)))
    yield case("million-unclosed-comments", ".c",
               lambda: "void before(void);\n" + "#define M /*\n" * 300000, tags=("before", "M"))


# --- Bytes ------------------------------------------------------------------------------------------


def random_bytes(size, seed):
    return random.Random(seed).randbytes(size)


def png():
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    rows = b"".join(b"\0" + random_bytes(600, row) for row in range(200))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", 200, 200, 8, 2, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def executable():
    return pathlib.Path(os.path.realpath(sys.executable)).read_bytes()[:3 * 2**20]


def bytes_cases():
    for suffix, good in GOOD.items():
        before, after = good("before").encode(), good("after").encode()
        def case(name, text, tags=(), suffix=suffix, absent=()):
            return Case(f"bytes/{name}{suffix}", "text", suffix, lambda: text, tags=tags,
                        absent=absent)
        both = ("before", "after")
        yield case("empty", b"")
        yield case("one-byte", b"\0")
        yield case("line-end", b"\n")
        yield case("nul-between", before + b"\0\0\0\n" + after, both)
        yield case("nul-in-a-line", before + b"\0" + after, both if suffix not in (".py", ".swift") else ("before",))
        yield case("nul-at-the-end", before + b"\0", ("before",))
        yield case("nul-million", before + b"\0" * 10**6 + b"\n" + after, both)
        for seed in range(4):
            yield case(f"random-{seed}", before + b"\n" + random_bytes(300000, seed), ("before",))
        yield case("every-byte", before + bytes(range(256)) * 500, ("before",))
        yield case("every-pair", before + bytes(b for i in range(256) for j in range(256)
                                                for b in (i, j)), ("before",))
        text = (before + after).decode()
        for coding in ("utf-16-le", "utf-16-be", "utf-16", "utf-32"):
            # Every second character is a NUL, so no word is one.
            yield case(coding, text.encode(coding), absent=both)
        # Its three bytes are dropped. In Swift a dropped character removes the next one, so that
        # the first word is damaged.
        yield case("byte-order-mark", b"\xef\xbb\xbf" + before + after,
                   both if suffix != ".swift" else ())
        yield case("latin-1", before + b"/* \xe9\xe8 */\n" + after
                   if suffix != ".py" else before + b"# \xe9\xe8\n" + after, both)
        yield case("utf-8", before + ("// \u00e9\u4e2d\U0001f600\n" if suffix != ".py" else
                                      "# \u00e9\u4e2d\U0001f600\n").encode() + after, both)
        yield case("carriage-returns", (before + after).replace(b"\n", b"\r"), both)
        yield case("carriage-returns-and-line-feeds", (before + after).replace(b"\n", b"\r\n"), both)
        yield case("no-final-newline", before + after.rstrip(b"\n"), both)
        yield case("control-z", before + after + b"\x1a", both)
        yield case("form-feeds", before + b"\x0c\n" + after,
                   both)
        yield case("executable", executable())
        yield case("executable-after", before + executable(), ("before",))
        yield case("image", png())
        yield case("compressed", before + zlib.compress(random_bytes(500000, 5)), ("before",))
        yield case("script", b"#!/bin/sh\nexec true\n" + after)
        yield case("high-bytes", before + b"\xff" * 100000 + b"\n" + after, both)


def cases(thorough):
    """Every case that is a text, with what has to be found by a program that reads thoroughly or not."""
    yield from family_cases(thorough)
    yield from size_cases()
    yield from bytes_cases()
