# SPDX-License-Identifier: MIT
"""Mutations of the conditions in hand-written C++.

  never, always  the condition of an `if` becomes false or true; that of a `while` false
  logic          `&&` becomes `||` and the other way round
  equality       `==` becomes `!=` and the other way round
  boundary       `<` becomes `<=`, `>` becomes `>=`, and the other way round

All mutations of the conditions of `if`, `while`, `for` and `return` go into one build: `switched`
writes each of them beside the original, and the environment variable VEXLTAGS_MUTANT chooses one.
"""
import re

from mutation import Mutation, identified

# Comments, strings and preprocessor lines, whose text is no code.
OPAQUE = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"\(.*?\)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|^[ \t]*#(?:\\\n|[^\n])*',
    re.DOTALL | re.MULTILINE,
)
HEAD = re.compile(r"\b(if|while|for) \(|\breturn\b")
# The project's format puts blanks around comparisons and none inside template brackets.
SIGN = re.compile(r"(?<=\s)(&&|\|\||==|!=|<=|>=|<|>)(?=\s)")
SWAPS = {"&&": "||", "||": "&&", "==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"}

# What each file of a switched build begins with. Code that runs in the compiler is never mutated.
SWITCH = """#pragma once
#ifdef __cplusplus
#include <cstdlib>
inline const int kActiveMutant =
    std::getenv("VEXLTAGS_MUTANT") == nullptr ? -1 : std::atoi(std::getenv("VEXLTAGS_MUTANT"));
constexpr bool IsMutant(int number) {
  return !__builtin_is_constant_evaluated() && kActiveMutant == number;
}
#endif
"""


def blanked(text):
    """The text with everything that is no code replaced by dots, line ends kept."""
    return OPAQUE.sub(lambda match: re.sub(r"[^\n]", ".", match.group()), text)


def closing(code, start, ends=")"):
    """Where the first of `ends` stands outside brackets, from `start` on; -1 when nowhere."""
    depth = 0
    for at in range(start, len(code)):
        if depth == 0 and code[at] in ends:
            return at
        depth += (code[at] in "([{") - (code[at] in ")]}")
    return -1


def static_spans(code):
    """Where the bodies of functions are that the compiler may run: their mutants never become active
    there, so they would survive without meaning anything."""
    for match in re.finditer(r"\bcons(texpr|teval)\b[^;{}=]*\{", code):
        yield match.end(), closing(code, match.end(), "}")


def conditions(text):
    """Triples of a keyword and where its condition begins and ends, for each condition."""
    code = blanked(text)
    spans = list(static_spans(code))
    for match in HEAD.finditer(code):
        keyword, start = match.group(1) or "return", match.end()
        line = code[code.rfind("\n", 0, start) + 1 : start]
        if "using" in line or "constexpr (" in line:
            continue
        if any(first <= start < last for first, last in spans):
            continue
        if keyword == "for":
            start = closing(code, start, ";)") + 1
            if start == 0 or code[start - 1] == ")":
                continue  # over a range
        end = closing(code, start, ";" if keyword in ("for", "return") else ")")
        condition = code[start:end]
        # A condition that declares a name has to stay as it is; so does what holds a function.
        declares = re.search(r"[^=!<>+\-*/|&^]=[^=]", condition) or ";" in condition
        if end > 0 and condition.strip() and not declares and "{" not in condition:
            yield keyword, start, end


def operator_of(sign):
    if sign in ("&&", "||"):
        return "logic"
    return "equality" if sign in ("==", "!=") else "boundary"


def grouped(file, text):
    """Pairs of a condition, as conditions() gives it, and its mutations."""
    code = blanked(text)
    for keyword, start, end in conditions(text):
        found = []
        if keyword in ("if", "while"):
            found.append(Mutation(file, "never", start, end, "false"))
        if keyword == "if":
            found.append(Mutation(file, "always", start, end, "true"))
        for match in SIGN.finditer(code, start, end):
            sign = match.group()
            found.append(Mutation(file, operator_of(sign), match.start(), match.end(), SWAPS[sign]))
        if found:
            yield (keyword, start, end), found


def mutations(file, text):
    return identified(text, [mutation for _, found in grouped(file, text) for mutation in found])


def switched(file, text, numbers):
    """The text with every mutation of `numbers`, which maps identities to numbers, to choose from."""
    places = {}
    for mutation in mutations(file, text):
        if mutation.ident in numbers:
            key = (mutation.start, mutation.end, mutation.operator)
            places[key] = numbers[mutation.ident]
    # From the end, so that the places before stay where they are.
    for (keyword, start, end), found in sorted(grouped(file, text), key=lambda pair: -pair[0][1]):
        original = text[start:end]
        chain = ""
        for mutation in found:
            number = places.get((mutation.start, mutation.end, mutation.operator))
            if number is not None:
                mutated = mutation.apply(text)[start : end + len(mutation.replacement)
                                                - (mutation.end - mutation.start)]
                cast = "" if keyword == "return" else "(bool)"
                chain += f"IsMutant({number}) ? {cast}({mutated.strip()}) : "
        if chain:
            cast = "" if keyword == "return" else "(bool)"
            text = f"{text[:start]} {chain}{cast}({original.strip()}){text[end:]}"
    return text
