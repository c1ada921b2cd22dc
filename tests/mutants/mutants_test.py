#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests of the mutation operators: what they change, what they leave alone, and that they compile."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import cxx_mutations  # noqa: E402
import grammar_mutations  # noqa: E402
import mutants  # noqa: E402


def changed(text, operator=None):
    """The rule's body after each mutation of one operator, blanks collapsed."""
    grammar = "grammar g;\noptions { language = C; }\n@header { int a; }\n" + text
    return [" ".join(m.apply(grammar).split("@header { int a; }\n")[1].split())
            for m in grammar_mutations.mutations("g.g", grammar)
            if operator in (None, m.operator)]


class Grammar(unittest.TestCase):
    def test_repetition(self):
        self.assertEqual(changed("a : ( b )* ;", "repetition"), ["a : ( b )+ ;", "a : ( b )? ;"])
        self.assertEqual(changed("a : ( b )+ ;", "repetition"), ["a : ( b ) ;", "a : ( b )* ;"])
        self.assertEqual(changed("A : 'x'? ;", "repetition"), ["A : 'x' ;"])

    def test_absent(self):
        self.assertEqual(changed("a : X ( b )? ( c )* ( d )+ ;", "absent"),
                         ["a : X ( c )* ( d )+ ;", "a : X ( b )? ( d )+ ;"])

    def test_syntactic_predicate(self):
        self.assertEqual(changed("a : ( X b )=> c | d ;", "predicate"), ["a : c | d ;"])
        # A predicate follows its alternative: of its parts only code is mutated.
        self.assertEqual(changed("a : ( ( b )* )=> c ;"), ["a : c ;"])
        self.assertEqual(changed("a : ( X { F() }? )=> c ;"),
                         ["a : c ;", "a : ( X )=> c ;", "a : ( X { !(F()) }? )=> c ;"])

    def test_semantic_predicate(self):
        self.assertEqual(changed("a : { F(ctx) }? b ;", "predicate"),
                         ["a : b ;", "a : { !(F(ctx)) }? b ;"])
        self.assertEqual(changed("a : { !F(ctx) }?=> b ;", "predicate"),
                         ["a : b ;", "a : { !(!F(ctx)) }?=> b ;"])

    def test_order_and_alternative(self):
        self.assertEqual(changed("a : b | c | d ;", "order"), ["a : c | b | d ;", "a : b | d | c ;"])
        self.assertEqual(changed("a : b | c | d ;", "alternative"),
                         ["a : c | d ;", "a : b | d ;", "a : b | c ;"])

    def test_order_that_says_nothing_is_left_alone(self):
        self.assertEqual(changed("a : X b | Y c | 'z' ;", "order"), [])
        self.assertEqual(changed("a : X b | X c ;", "order"), ["a : X c | X b ;"])
        self.assertEqual(changed("A : '/' | '/*' ;", "order"), ["A : '/*' | '/' ;"])
        self.assertEqual(changed("A : B | C ;", "order"), ["A : C | B ;"])

    def test_action_and_option(self):
        rule = "a returns [int r = 0]\noptions { memoize = true; }\n@init { if (F({1})) return r; }\n"
        rule += "  : b { $r = '}'; G(\"{\"); } ;"
        self.assertEqual(len(changed(rule)), 3)
        self.assertEqual(changed(rule, "option"), [
            "a returns [int r = 0] @init { if (F({1})) return r; } : b { $r = '}'; G(\"{\"); } ;"])
        self.assertEqual(changed(rule, "action"), [
            "a returns [int r = 0] options { memoize = true; } : b { $r = '}'; G(\"{\"); } ;",
            "a returns [int r = 0] options { memoize = true; } @init { if (F({1})) return r; } : b ;"])

    def test_comments_and_strings_are_no_grammar(self):
        self.assertEqual(changed("// ( b )*\nA : '(b)*|' /* | c */ 'd' ;"), [])

    def test_labels_ranges_and_arguments(self):
        self.assertEqual(changed("a[int x] : n = b[$x, 1]? ( w = ( X | Y ) )+ ;", "absent"),
                         ["a[int x] : ( w = ( X | Y ) )+ ;"])
        self.assertEqual(changed("A : ( 'a' .. 'z' | '_' )* ;", "alternative"),
                         ["A : ( '_' )* ;", "A : ( 'a' .. 'z' )* ;"])

    def test_identity_survives_moves(self):
        one = grammar_mutations.mutations("g.g", "grammar g;\na : ( b )? ( b )? ;\n")
        two = grammar_mutations.mutations("g.g", "grammar g;\n\n\nz : Z ;\na : ( b )? ( b )? ;\n")
        self.assertEqual([m.ident for m in one], [m.ident for m in two])
        self.assertEqual(len({m.ident for m in one}), len(one))
        self.assertEqual([two[0].line, two[-1].line], [5, 5])


PROGRAM = """
#include <cstdio>
#include <initializer_list>
// if (a < b) is a comment.
template <class A, class B>
bool Less(A a, B b) { return a < b; }
constexpr bool More(int a, int b) { return a > b || a == b; }
static_assert(More(2, 1));
int main(int argc, char** argv) {
  int* p = argc > 2 ? &argc : nullptr;
  if (p && *p == 3) std::puts("three");
  if (int n = argc; n > 5) std::puts("a < b && c");
  for (int i = 1; i < argc; ++i) std::puts(argv[i]);
  for (const char c : {'a', 'b'}) std::printf("%c", c);
  while (argc > 4) --argc;
  return Less(argc, 2) ? 0 : 1;
}
"""


class Cxx(unittest.TestCase):
    def found(self):
        return [(m.operator, m.before, m.after) for m in cxx_mutations.mutations("a.cc", PROGRAM)]

    def test_operators(self):
        self.assertEqual(sorted(self.found()), sorted([
            ("boundary", "<", "<="),  # Less
            ("never", "p && *p == 3", "false"),
            ("always", "p && *p == 3", "true"),
            ("logic", "&&", "||"),
            ("equality", "==", "!="),
            ("boundary", "<", "<="),  # for
            ("never", "argc > 4", "false"),
            ("boundary", ">", ">="),  # while
        ]))

    def test_every_switched_mutation_compiles_and_one_runs(self):
        """Without a number the switched program is the original; with one, one change of it."""
        numbers = {m.ident: n for n, m in enumerate(cxx_mutations.mutations("a.cc", PROGRAM))}
        text = cxx_mutations.switched("a.cc", PROGRAM, numbers)
        self.assertEqual(text.count("\n"), PROGRAM.count("\n"))
        self.assertEqual(text.count("IsMutant("), len(numbers))
        with tempfile.TemporaryDirectory(prefix="vexltags-mutants-") as folder:
            for name, content in (("a.cc", text), ("switch.h", cxx_mutations.SWITCH)):
                with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
                    file.write(content)
            compiler = os.environ.get("CXX", "c++")
            subprocess.run([compiler, "-std=c++20", "-include", "switch.h", "a.cc", "-o", "a"],
                           cwd=folder, check=True)

            def run(number, *args):
                environment = dict(os.environ, VEXLTAGS_MUTANT=number)
                done = subprocess.run(["./a", *args], cwd=folder, env=environment, text=True,
                                      stdout=subprocess.PIPE)
                return done.returncode, done.stdout

            by_kind = {(m.operator, m.line): str(numbers[m.ident])
                       for m in cxx_mutations.mutations("a.cc", PROGRAM)}
            self.assertEqual(run("", "x", "y"), (1, "three\nx\ny\nab"))
            self.assertEqual(run(by_kind["never", 11], "x", "y"), (1, "x\ny\nab"))
            self.assertEqual(run(by_kind["equality", 11], "x", "y"), (1, "x\ny\nab"))
            self.assertEqual(run(by_kind["always", 11], "x"), (1, "three\nx\nab"))
            self.assertEqual(run(by_kind["boundary", 6], "x"), (0, "x\nab"))


class Sources(unittest.TestCase):
    """The project's own grammars and sources are read to their ends."""

    @unittest.skipIf(shutil.which("git") is None or not (mutants.ROOT / ".git").exists(), "needs git")
    def test_grammars_and_sources(self):
        found = mutants.all_mutations()
        self.assertEqual(len({m.ident for m in found}), len(found))
        files = {m.file for m in found}
        for name in mutants.GRAMMARS:
            self.assertIn(f"src/grammars/{name}.g", files)
        rules = {m.operator for m in found if m.file.endswith(".g")}
        self.assertEqual(rules, {"option", "repetition", "absent", "predicate", "order", "alternative",
                                 "action"})
        self.assertEqual({m.operator for m in found if not m.file.endswith(".g")},
                         {"never", "always", "logic", "equality", "boundary"})


if __name__ == "__main__":
    unittest.main()
