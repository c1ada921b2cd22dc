#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests how tags are read and held against a truth. Needs no compiler."""
import sys
import unittest

sys.dont_write_bytecode = True
import indexers
import measure
import truth


def known(*declarations):
    """A truth of (line, name, parent, need) each."""
    found = truth.FileTruth("a.h")
    for line, name, parent, need in declarations:
        found.add(line, [name], "function", [parent], need)
    return found


def score_of(found, tags, text="", ambiguous=()):
    score = measure.Score()
    parsed = indexers.parse("\n".join('%s\ta.h\t%d;"\tf\t%s' % tag for tag in tags), "c++")
    measure.judge(score, found, parsed.get("a.h", ()), text.split("\n"), set(ambiguous))
    return score


class Names(unittest.TestCase):
    def test_template_arguments_are_dropped(self):
        self.assertEqual(truth.plain_name("Box<int, a<b>>"), "Box")

    def test_operators_lose_blanks(self):
        for spelt, plain in (("operator ==", "operator=="), ("operator()", "operator()"),
                             ("operator new[]", "operatornew[]"), ("operator <", "operator<"),
                             ('operator "" _a', 'operator""_a')):
            self.assertEqual(truth.plain_name(spelt), plain)

    def test_conversions_are_alike(self):
        self.assertEqual(truth.plain_name("operator bool"), "operator (type)")
        self.assertEqual(truth.plain_name("A::operator std::string"), "operator (type)")

    def test_a_name_may_begin_with_operator(self):
        self.assertEqual(truth.plain_name("operators"), "operators")

    def test_innermost_scope(self):
        for scope, name in (("a::b", "b"), ("a::Box<c::d>", "Box"), ("a::__anon1", "a"),
                            ("Outer.Inner", "Inner"), ("__anon1", "")):
            self.assertEqual(indexers.innermost(scope), name)

    def test_scope_fields(self):
        for fields, name in ((["class:a::C"], "C"), (["scope:namespace:n"], "n"),
                             (["Body.Part"], "Part"), (["typeref:struct:S"], ""),
                             (["typeref:x:y", "class:K"], "K"), ([], "")):
            self.assertEqual(indexers.scope_of(fields), name)

    def test_swift_names_keep_their_labels(self):
        tags = indexers.parse('<(l:, r:)\ta.swift\t3;"\tf\tA.B', "swift")
        self.assertEqual(tags["a.swift"][0][:3], ("<(l:,r:)", "<(l:, r:)", 3))


class Matching(unittest.TestCase):
    def test_found_lost_and_wrong(self):
        score = score_of(known((1, "a", "", truth.NEEDED), (5, "b", "", truth.NEEDED)),
                         [("a", 1, ""), ("c", 5, "")])
        self.assertEqual((score.needed, score.found, score.right, score.wrong), (2, 1, 1, 1))
        self.assertEqual(score.misses, [("a.h", 5, "b", "function")])
        self.assertEqual(score.wrongs, [("a.h", 5, "c", "f")])

    def test_two_lines_away_is_near(self):
        found = known((10, "a", "", truth.NEEDED))
        self.assertEqual(score_of(found, [("a", 12, "")]).found, 1)
        far = score_of(found, [("a", 13, "")])
        self.assertEqual((far.found, far.wrong), (0, 1))

    def test_one_tag_finds_one_declaration(self):
        score = score_of(known((1, "a", "", truth.NEEDED), (2, "a", "", truth.NEEDED)),
                         [("a", 1, "")])
        self.assertEqual(score.found, 1)

    def test_the_exact_line_comes_first(self):
        score = score_of(known((1, "a", "", truth.NEEDED), (2, "a", "", truth.NEEDED)),
                         [("a", 2, ""), ("a", 1, "")])
        self.assertEqual((score.found, score.wrong), (2, 0))

    def test_optional_names_do_not_count(self):
        found = known((1, "a", "", truth.OPTIONAL))
        self.assertEqual(score_of(found, []).needed, 0)
        score = score_of(found, [("a", 1, "")])
        self.assertEqual((score.right, score.wrong, score.optional), (0, 0, 1))

    def test_made_names_are_right_but_not_needed(self):
        score = score_of(known((1, "a", "", truth.MADE)), [("a", 1, "")])
        self.assertEqual((score.needed, score.made, score.right), (0, 1, 1))

    def test_skipped_lines_are_unknown(self):
        found = known()
        found.skipped = [(3, 5)]
        score = score_of(found, [("a", 4, ""), ("b", 6, "")])
        self.assertEqual((score.unknown, score.wrong), (1, 1))

    def test_arguments_of_a_statement_macro_are_unknown(self):
        found = known()
        found.uses = [(1, 1, "MAKE")]
        score = score_of(found, [("x", 1, ""), ("MAKE", 1, "")], "MAKE(int x)")
        self.assertEqual((score.unknown, score.wrong), (1, 1))

    def test_another_definition_of_a_macro_is_unknown(self):
        found = known()
        found.uses = [(1, 1, "MAKE")]
        self.assertEqual(score_of(found, [("made", 1, "")], "f MAKE;", ["MAKE"]).unknown, 1)
        self.assertEqual(score_of(found, [("made", 1, "")], "f MAKE;").wrong, 1)

    def test_arguments_of_a_macro_may_be_where_its_use_begins(self):
        truths = known((7, "a", "", truth.NEEDED), (19, "b", "", truth.NEEDED))
        truths.uses.append((1, 9, "LIST"))
        score = score_of(truths, [("a", 1, ""), ("b", 1, "")])
        self.assertEqual((score.found, score.wrong), (1, 1))

    def test_scopes(self):
        found = known((1, "a", "C", truth.NEEDED), (2, "b", "C", truth.NEEDED),
                      (3, "c", "", truth.NEEDED), (9, "d", "", truth.NEEDED))
        score = score_of(found, [("a", 1, "class:n::C"), ("b", 2, ""), ("c", 3, ""),
                                 ("d", 9, "class:D")])
        self.assertEqual((score.scoped, score.scope_right), (3, 1))

    def test_nested_namespaces_in_one_tag(self):
        score = score_of(known((1, "a", "", truth.NEEDED), (1, "b", "a", truth.NEEDED)),
                         [("a::b", 1, "")])
        self.assertEqual((score.found, score.wrong), (2, 0))


class Truths(unittest.TestCase):
    def test_errors_in_bodies_are_dropped(self):
        found = known()
        found.errors = [(5, "in a body"), (9, "outside")]
        found.bodies = [(4, 6)]
        found.finish()
        self.assertEqual(found.errors, [(9, "outside")])

    def test_merged_configurations(self):
        one, other = known((1, "a", "", truth.OPTIONAL)), known((1, "a", "C", truth.NEEDED),
                                                                (2, "b", "", truth.NEEDED))
        one.skipped, other.skipped = [(1, 10)], [(5, 20)]
        one.merge(other)
        self.assertEqual(one.declarations[(1, "a")][0], truth.NEEDED)
        self.assertEqual(one.declarations[(1, "a")][3], ["", "C"])
        self.assertEqual(one.skipped, [(5, 10)])
        self.assertIn((2, "b"), one.declarations)

    def test_json_keeps_all(self):
        one = known((1, "a", "C", truth.NEEDED))
        one.skipped, one.uses = [(2, 3)], [(4, 5, "M")]
        again = truth.FileTruth.from_json("a.h", one.to_json())
        self.assertEqual(again.declarations, one.declarations)
        self.assertEqual((again.skipped, again.uses), (one.skipped, one.uses))


if __name__ == "__main__":
    unittest.main()
