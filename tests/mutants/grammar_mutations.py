# SPDX-License-Identifier: MIT
"""Mutations of an ANTLR 3 grammar.

  option       drop `options { memoize = true; }` of a rule
  repetition   `*` becomes `+` or `?`, `+` becomes `*` or one, `?` becomes one
  absent       drop an optional element, `( X )?` or `( X )*`
  predicate    drop `( X )=>`, drop or negate `{ X }?`
  order        swap two neighbouring alternatives
  alternative  drop an alternative
  action       drop an action or the code that a rule begins with
"""
import re

from mutation import Mutation, identified

TOKEN = re.compile(
    r"""(?P<space>\s+|//[^\n]*|/\*.*?\*/)
      | (?P<string>'(?:\\.|[^'\\])*')
      | (?P<name>@?[A-Za-z_][A-Za-z0-9_]*)
      | (?P<sign>=>|\.\.|\+=|::|->|[^\sA-Za-z0-9_])
      | (?P<number>[0-9]+)""",
    re.VERBOSE | re.DOTALL,
)
# What a brace or bracket has to be balanced over in the target language.
CODE = re.compile(r"""//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])'|[][{}]""", re.DOTALL)


class Token:
    def __init__(self, kind, text, start):
        self.kind, self.text, self.start, self.end = kind, text, start, start + len(text)


def end_of_code(text, start):
    """Where the balanced code that opens at `start` with `{` or `[` ends."""
    opening = text[start]
    closing = {"{": "}", "[": "]"}[opening]
    depth = 0
    for match in CODE.finditer(text, start):
        depth += (match.group() == opening) - (match.group() == closing)
        if depth == 0:
            return match.end()
    raise ValueError(f"code is not closed from {text[start:start + 40]!r} on")


def tokens(text):
    """The tokens without blanks and comments; code in braces and brackets is one token each."""
    result = []
    at = 0
    while at < len(text):
        if text[at] in "{[":
            token = Token("code", text[at : end_of_code(text, at)], at)
        else:
            match = TOKEN.match(text, at)
            token = Token(match.lastgroup, match.group(), at)
        at = token.end
        if token.kind != "space":
            result.append(token)
    return result


class Element:
    """One element of an alternative: `kind` is terminal, rule, block or code."""

    def __init__(self, kind, start):
        self.kind, self.start, self.end = kind, start, start
        self.text = ""
        self.suffix = ""  # "*", "+", "?" or "=>", at suffix_start
        self.suffix_start = 0
        self.negated = False
        self.blocks = []  # of a block: its alternatives, each a list of elements
        self.spans = []  # of a block: where its alternatives begin and end


class Parser:
    """Reads the rules of a grammar as far as the mutations need their structure."""

    def __init__(self, text):
        self.tokens = tokens(text)
        self.at = 0

    def peek(self, ahead=0):
        index = self.at + ahead
        return self.tokens[index] if index < len(self.tokens) else Token("end", "", 0)

    def take(self):
        self.at += 1
        return self.tokens[self.at - 1]

    def rules(self):
        """Triples of a rule's name, its heading's code tokens by keyword, and its body."""
        while self.at < len(self.tokens):
            token = self.take()
            if token.text == "grammar":
                while self.take().text != ";":
                    pass
            elif token.text == "options":
                self.take()
            elif token.text.startswith("@"):
                while self.peek().kind != "code":
                    self.take()
                self.take()
            else:
                if token.text == "fragment":
                    token = self.take()
                yield token.text, *self.rest_of_rule()

    def rest_of_rule(self):
        heading = []
        while self.peek().text != ":":
            token = self.take()
            if self.peek().kind == "code" and (token.text == "options" or token.text[0] == "@"):
                heading.append((token, self.take()))
        colon = self.take()
        body = Element("block", colon.start)
        self.alternatives(body, ";")
        return heading, body

    def alternatives(self, block, closing):
        start = self.peek().start
        elements = []
        while True:
            token = self.peek()
            if token.text == "|" or token.text == closing:
                block.blocks.append(elements)
                block.spans.append((start, elements[-1].end if elements else start))
                self.take()
                if token.text == closing:
                    block.end = token.end
                    return
                start, elements = self.peek().start, []
            else:
                elements.append(self.element())

    def element(self):
        start = self.peek().start
        if self.peek().kind == "name" and self.peek(1).text in ("=", "+="):
            self.take(), self.take()
        negated = self.peek().text == "~"
        if negated:
            self.take()
        token = self.take()
        if token.text == "(":
            element = Element("block", start)
            if self.peek().text == "options":
                self.take(), self.take(), self.take()
            self.alternatives(element, ")")
        elif token.kind == "code":
            element = Element("code", start)
            element.end = token.end
        else:
            terminal = token.kind == "string" or token.text[0].isupper() or token.text == "."
            element = Element("terminal" if terminal else "rule", start)
            element.end = token.end
            if self.peek().text == "..":
                self.take()
                element.end = self.take().end
            if self.peek().kind == "code" and self.peek().text[0] == "[":
                element.end = self.take().end
        element.text, element.negated = token.text, negated
        if self.peek().text in ("*", "+", "?", "=>"):
            suffix = self.take()
            element.suffix, element.suffix_start, element.end = suffix.text, suffix.start, suffix.end
            if element.kind == "code" and self.peek().text == "=>":
                element.end = self.take().end
        return element


def starts_apart(first, second, in_lexer):
    """Whether the first token alone tells two alternatives apart, so that their order says nothing."""
    heads = []
    for elements in (first, second):
        shown = [element for element in elements if element.kind != "code"]
        if not shown or shown[0].kind != "terminal" or shown[0].suffix in ("*", "?"):
            return False
        heads.append(shown[0].text.strip("'") if in_lexer else shown[0].text)
        if in_lexer and shown[0].text[0] != "'":
            return False
    return not heads[0].startswith(heads[1]) and not heads[1].startswith(heads[0])


class Mutator:
    def __init__(self, file, text):
        self.file, self.text, self.found = file, text, []
        self.in_lexer = False

    def add(self, operator, start, end, replacement):
        self.found.append(Mutation(self.file, operator, start, end, replacement))

    def block(self, block):
        for index, elements in enumerate(block.blocks):
            self.choice(block, index)
            for element in elements:
                self.element(element)

    def choice(self, block, index):
        if len(block.blocks) < 2:
            return
        start, end = block.spans[index]
        if index + 1 < len(block.blocks):
            next_start, next_end = block.spans[index + 1]
            self.add("alternative", start, next_start, "")
            first, second = block.blocks[index : index + 2]
            if not starts_apart(first, second, self.in_lexer):
                between = self.text[end:next_start]
                swapped = self.text[next_start:next_end] + between + self.text[start:end]
                self.add("order", start, next_end, swapped)
        else:
            self.add("alternative", block.spans[index - 1][1], end, "")

    def element(self, element):
        if element.kind == "code":
            if element.suffix == "?":
                inner = self.text[element.start + 1 : element.suffix_start].rstrip()[:-1]
                tail = self.text[element.suffix_start : element.end]
                self.add("predicate", element.start, element.end, "")
                self.add("predicate", element.start, element.end, f"{{ !({inner.strip()}) }}{tail}")
            else:
                self.add("action", element.start, element.end, "")
            return
        if element.suffix == "=>":
            self.add("predicate", element.start, element.end, "")
            # The rest of it follows its alternative; what it asks of the code is its own.
            for inner in sum(element.blocks, []):
                if inner.kind == "code" and inner.suffix == "?":
                    self.element(inner)
            return
        for other in {"*": "+?", "+": "* ", "?": " "}.get(element.suffix, ""):
            self.add("repetition", element.suffix_start, element.end, other.strip())
        if element.suffix in ("*", "?") and not element.negated:
            self.add("absent", element.start, element.end, "")
        if element.kind == "block":
            self.block(element)


def mutations(file, text):
    mutator = Mutator(file, text)
    for name, heading, body in Parser(text).rules():
        mutator.in_lexer = name[0].isupper()
        for keyword, code in heading:
            if keyword.text == "options":
                mutator.add("option", keyword.start, code.end, "")
            elif keyword.text == "@init":
                mutator.add("action", keyword.start, code.end, "")
        mutator.block(body)
    return identified(text, mutator.found)
