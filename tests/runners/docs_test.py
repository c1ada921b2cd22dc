#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds usage text, manual pages and completions to one list of options, and runs the examples.

usage: docs_test.py --program VEXLTAGS [-v] [TEST...]

The list is what the program's usage text names, and the options on which that text is silent. The
companions vexltags-portable and vexltags-ctags are in the program's folder.
"""
import argparse
import json
import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PROGRAM = ""
# Options that the usage text does not mention.
SILENT = {
    "--time",
    "--debugDumpFilesWithHugeOutput",
    "--checkForFilesWithAbortedParse",
    "--exclude",
    "--c-kinds",
    "--excmd=number",
    "--language-force",
    # The usage text is fixed. These change which tags there are, and only on request.
    "--thorough",
    "--macros",
}
# How an option is written that is one only together with its value.
WITH_VALUE = {"--macros": "--macros=."}
OPTION = r"--?[A-Za-z](?:[A-Za-z-]*[A-Za-z])?(?:=number)?"
# The options of vexltags-ctags can begin with `_` and have values in brackets.
CTAGS_OPTION = r"(?<![\w-])--?_?[A-Za-z](?:[A-Za-z-]*[A-Za-z])?"
# Those with the name of a language in them, which no shell can complete.
CTAGS_PATTERNS = {"--LANG-kinds", "--kinds-LANG"}
SOURCES = {
    "shape.h": "#define SIDES 4\nclass Shape {\n public:\n  int Area() const;\n};\n",
    "view.m": "@interface View\n- (void)draw;\n@end\n",
    "body.swift": "class Body {\n  func stop() {}\n}\n",
    "tool.py": "class Stack:\n    def push(self):\n        pass\n",
}


def output_of(*command, **more):
    done = subprocess.run(command, stdout=subprocess.PIPE, check=True, timeout=60, **more)
    return done.stdout.decode()


def usage_options(program):
    """The options at the beginning of the usage text's lines."""
    heads = [line.split("   ")[0] for line in output_of(program, "--help").splitlines()
             if line.startswith("  -")]
    heads += [line.strip().split("  ")[0] for line in output_of(program, "--help").splitlines()
              if line.startswith("      --")]
    return {option for head in heads for option in re.findall(rf"(?<![\w-]){OPTION}", head)}


def all_options():
    return usage_options(PROGRAM) | SILENT


def filter_options():
    return usage_options(f"{PROGRAM}-portable")


def ctags_options():
    """The options at the beginning of the lines of `vexltags-ctags --help`, without values."""
    found = set()
    for line in output_of(f"{PROGRAM}-ctags", "--help").splitlines():
        if re.match(r"  --?[A-Za-z_]", line):
            head = re.sub(r"\[.*?\]", "", line.strip().split("   ")[0])
            found |= set(re.findall(CTAGS_OPTION, re.sub(r"=[^ ,]*", "", head)))
    return found


def is_built(companion):
    return os.path.exists(f"{PROGRAM}-{companion}")


def read(path):
    return (ROOT / path).read_text(encoding="utf-8")


def plain(roff):
    """A line of a manual page without its markup."""
    text = re.sub(r"\\f[BIRP]", "", roff).replace("\\-", "-").replace("\\e", "\\")
    return re.sub(r'["\s]+', " ", text)


def man_options(page):
    """The options that have an entry: those in the line after .TP in the section OPTIONS."""
    section = read(page).split(".SH OPTIONS\n")[1].split("\n.SH ")[0]
    heads = re.findall(r"^\.TP\n(.*)$", section, re.MULTILINE)
    return {option for head in heads
            for option in re.findall(rf"(?:(?<=\s)|(?<=,)){OPTION}", plain(head))}


def man_examples(page):
    section = read(page).split(".SH EXAMPLES\n")[1].split("\n.SH ")[0]
    blocks = re.findall(r"\.RS\n(.*?)\.RE\n", section, re.DOTALL)
    return [block.replace("\\-", "-").replace("\\e", "\\") for block in blocks]


class Scratch(unittest.TestCase):
    """A folder with a git repository of a few sources, and the programs in the path."""

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vexltags-")).resolve()
        self.addCleanup(shutil.rmtree, self.folder)
        for name, text in SOURCES.items():
            (self.folder / name).write_text(text, encoding="utf-8")
        path = os.path.dirname(PROGRAM) + os.pathsep + os.environ["PATH"]
        self.env = dict(os.environ, PATH=path, HOME=str(self.folder), PWD=str(self.folder),
                        LC_ALL="C")

    def run_shell(self, text):
        return subprocess.run(["sh", "-euc", text], cwd=self.folder, env=self.env, timeout=60,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE)


class Options(unittest.TestCase):
    def test_usage_text_is_read_right(self):
        options = usage_options(PROGRAM)
        for option in ("-h", "--help", "-I", "--filterToken", "-L", "-f", "--sort",
                       "--debugDumpFilenames"):
            self.assertIn(option, options)
        self.assertFalse(options & SILENT)
        self.assertEqual(filter_options(),
                         {"-i", "--in-place", "-h", "--help", "-v", "--version"})

    def test_silent_options_are_options(self):
        for option in SILENT:
            done = subprocess.run([PROGRAM, WITH_VALUE.get(option, option)],
                                  stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                  stderr=subprocess.PIPE, timeout=60)
            # Taken for a path, it would be reported as a file that cannot be opened.
            self.assertEqual(done.stderr, b"reading from stdin not yet implemented\n", option)

    def test_man_page(self):
        self.assertEqual(man_options("doc/vexltags.1"), all_options())

    def test_man_page_of_the_filter(self):
        self.assertEqual(man_options("doc/vexltags-portable.1"), filter_options())

    def test_bash(self):
        script = ('. "$1"; shift; COMP_WORDS=("$1" -); COMP_CWORD=1; "$2"; '
                  'printf "%s\\n" "${COMPREPLY[@]}"')
        for name, function, expected in (
                ("vexltags", "_vexltags", all_options()),
                ("vexltags-portable", "_vexltags_portable", filter_options())):
            text = output_of("bash", "-c", script, "bash", ROOT / "completions/vexltags.bash",
                             name, function)
            self.assertEqual({word.rstrip("=") for word in text.split()}, expected)

    def test_zsh(self):
        text = read("completions/_vexltags")
        filter_part, own_part = text.split("  return\nfi\n")
        for part, expected in ((own_part, all_options()), (filter_part, filter_options())):
            found = set()
            for line in re.findall(r"^ +('.*)$", part, re.MULTILINE):
                names = re.sub(r"'\(.*?\)'", "", line).split("[")[0]
                found |= set(re.findall(rf"(?<![\w-]){OPTION}", names))
            self.assertEqual(found, expected)

    def test_fish(self):
        for name, expected in (("vexltags", all_options()),
                               ("vexltags-portable", filter_options())):
            found = set()
            for line in read("completions/vexltags.fish").splitlines():
                if not line.startswith(f"complete -c {name} "):
                    continue
                head = line.split(" -d ")[0]
                found |= {"--" + word for word in re.findall(r" -l (\S+)", head)}
                found |= {"-" + word for word in re.findall(r" -s (\S+)", head)}
                # Options with a value after `=` are whole words, to which fish adds no blank.
                for words in re.findall(r" -a '(.*?)'", head):
                    found |= {word.split("=")[0] for word in words.split()}
            self.assertEqual(found, expected)


class CtagsOptions(unittest.TestCase):
    def setUp(self):
        if not is_built("ctags"):
            self.skipTest("vexltags-ctags is not built")
        self.expected = ctags_options() - CTAGS_PATTERNS

    def test_usage_text_is_read_right(self):
        for option in ("-f", "-o", "-R", "--recurse", "--_xformat", "--list-kinds-full", "--excmd"):
            self.assertIn(option, self.expected)
        self.assertLessEqual(CTAGS_PATTERNS, ctags_options())

    def test_they_are_options(self):
        with tempfile.TemporaryDirectory(prefix="vexltags-") as folder:
            for option in self.expected:
                done = subprocess.run([f"{PROGRAM}-ctags", "--options=NONE", option, "1", "no.c"],
                                      stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                      stderr=subprocess.PIPE, timeout=60, cwd=folder)
                self.assertNotIn(b"Unknown option", done.stderr, option)

    def test_man_page(self):
        section = read("doc/vexltags-ctags.1").split(".SH OPTIONS\n")[1].split("\n.SH ")[0]
        heads = " ".join(plain(head) for head in re.findall(r"^\.TP\n(.*)$", section, re.MULTILINE))
        heads = re.sub(r"= *(?:\[.*?\] *)?[^ ,]*|\[.*?\]", "", heads)
        self.assertEqual(set(re.findall(CTAGS_OPTION, heads)) - CTAGS_PATTERNS, self.expected)

    def test_bash(self):
        script = ('. "$1"; COMP_WORDS=(vexltags-ctags -); COMP_CWORD=1; _vexltags_ctags; '
                  'printf "%s\\n" "${COMPREPLY[@]}"')
        text = output_of("bash", "-c", script, "bash", ROOT / "completions/vexltags-ctags.bash")
        self.assertEqual({word.rstrip("=") for word in text.split()}, self.expected)

    def test_zsh(self):
        found = set()
        for line in re.findall(r"^ +(['\"].*)$", read("completions/_vexltags-ctags"), re.MULTILINE):
            head = re.sub(r"^(['\"])\(.*?\)", r"\1", line).split("[")[0]
            found |= set(re.findall(CTAGS_OPTION, head.rstrip("=-")))
        self.assertEqual(found, self.expected)

    def test_fish(self):
        found = set()
        for line in read("completions/vexltags-ctags.fish").splitlines():
            if line.startswith("complete -c vexltags-ctags ") and " -d " in line:
                head = line.split(" -d ")[0]
                found |= {"--" + word for word in re.findall(r" -l (\S+)", head)}
                found |= {"-" + word for word in re.findall(r" -s (\S+)", head)}
                for words in re.findall(r" -a '(.*?)'", head):
                    found |= {word.split("=")[0] for word in words.split()}
        self.assertEqual(found, self.expected)


class Pages(unittest.TestCase):
    def test_version(self):
        version = re.match(r"vexltags v (\S+), ", output_of(PROGRAM, "-v")).group(1)
        for page in ("doc/vexltags.1", "doc/vexltags-ctags.1", "doc/vexltags-portable.1",
                     "doc/vexltags-tree.1"):
            self.assertIn(f'"vexltags {version}"', read(page))
        # The newest section of the changes is that of this version, or of what comes after it.
        sections = re.findall(r"^## (.*)$", read("CHANGELOG.md"), re.MULTILINE)
        self.assertEqual([name for name in sections[:2] if name != "Unreleased"][0], version)

    def test_kinds_agree(self):
        """The manual page and the page on the format list the same letters a language."""
        page = {}
        for language, table in re.findall(r"^\.SS Kinds of (.*?)\n\.TS\n.*?\n(.*?)\.TE",
                                          read("doc/vexltags.1"), re.DOTALL | re.MULTILINE):
            letters = re.findall(r"^(\S(?:, \S)?)\t", table, re.MULTILINE)
            page[language.split(",")[0]] = {c for group in letters for c in group.split(", ")}
        text = read("doc/tags-format.md").split("## Kinds\n")[1].split("\n## ")[0]
        parts = re.split(r"^(C|Swift|Python)(?:, .*)?:$", text, flags=re.MULTILINE)
        doc = {name: {c for row in re.findall(r"^\| (`.*?) \|", rows, re.MULTILINE)
                      for c in re.findall(r"`(.)`", row)}
               for name, rows in zip(parts[1::2], parts[2::2])}
        self.assertEqual(set(page), {"C", "Swift", "Python"})
        self.assertEqual(page, doc)

    def test_kinds_and_fields_of_the_cases(self):
        """The golden cases show each letter and each key that the page lists, and no other."""
        text = read("doc/vexltags.1")
        letters = dict(re.findall(r"^\.SS Kinds of (C|Swift|Python)\b.*?\n\.TS\n.*?\n(.*?)\.TE", text,
                                  re.DOTALL | re.MULTILINE))
        heads = text.split(".SS Fields\n")[1].split(".SH ")[0]
        keys = set(re.findall(r"\b([a-z]+):", plain(" ".join(re.findall(r"^\.TP\n(.*)$", heads,
                                                                       re.MULTILINE)))))
        seen_keys = set()
        for language, folders in (("C", "c cxx objc"), ("Swift", "swift"), ("Python", "python")):
            seen = set()
            for folder in folders.split():
                for case in (ROOT / "tests/cases" / folder).rglob("expected.tags"):
                    for line in case.read_text("latin-1").splitlines():
                        fields = line.split("\t")[3:]
                        seen.add(fields[0])
                        seen_keys |= {key for field in fields[1:]
                                      for key in re.findall(r"^([a-z]+):", field)}
            listed = re.findall(r"^(\S(?:, \S)?)\t", letters[language], re.MULTILINE)
            self.assertEqual(seen, {c for group in listed for c in group.split(", ")}, language)
        self.assertEqual(seen_keys, keys)

    def test_suffixes_and_excludes_of_the_tree(self):
        """The manual page lists the suffixes of sources and the directories that a walk leaves out."""
        text = read("doc/vexltags-tree.1")
        listed = set()
        languages = text.split(".SS Languages\n")[1].split("\n.PP\n")[0]
        for language, rows in re.findall(r"^\.TP\n\.B (\S+)\n(.*?)(?=^\.TP|\Z)", languages,
                                         re.DOTALL | re.MULTILINE):
            listed |= {(language, suffix) for suffix in re.findall(r"^\.BR? \.(\S+)", rows, re.MULTILINE)}
        names = {"kC": ["C"], "kCxx": ["C++"], "kObjectiveC": ["ObjectiveC"], "kSwift": ["Swift"],
                 "kPython": ["Python"], "kAnyHeader": ["C", "C++", "ObjectiveC"]}
        table = read("src/sources/source_suffixes.cc").split("kSuffixes[] = {")[1].split("};")[0]
        built = {(name, suffix) for suffix, group in re.findall(r'\{"([^"]+)", (\w+)\}', table)
                 for name in names[group]}
        self.assertEqual(listed, built)

        words = text.split("all that begin with a dot,\n")[1].split("\n.PP\n")[0]
        code = read("src/sources/source_list.cc").split("kPatterns = {")[1].split("};")[0]
        self.assertEqual({word + "/" for word in re.findall(r"^\.BR? (\w+)", words, re.MULTILINE)}
                         | {".*/"}, set(re.findall(r'"([^"]+)"', code)))

    def test_links(self):
        for page in [*ROOT.glob("*.md"), *ROOT.glob("doc/*.md"), *ROOT.glob("editors/*.md"),
                     *ROOT.glob("hooks/*.md"), ROOT / "src/grammars/README.md"]:
            for target in re.findall(r"\]\(([^)#]+)\)", page.read_text(encoding="utf-8")):
                if "://" not in target:
                    self.assertTrue((page.parent / target).exists(), f"{page.name}: {target}")

    def test_snippets(self):
        """The files that an editor can load hold what their pages show, below a head of their own."""
        for page, language, snippet in (("vim", "vim", "vexltags.vim"),
                                        ("neovim", "vim", "vexltags.vim"),
                                        ("emacs", "elisp", "vexltags.el")):
            (block,) = re.findall(rf"^```{language}\n(.*?)^```$", read(f"editors/{page}.md"),
                                  re.DOTALL | re.MULTILINE)
            self.assertIn(block, read(f"editors/{snippet}"), page)

    def test_lengths(self):
        for page, most in (("README.md", 100), ("CONTRIBUTING.md", 60)):
            self.assertLessEqual(len(read(page).splitlines()), most, page)


class Examples(Scratch):
    def check_page(self, page, count):
        examples = man_examples(page)
        self.assertEqual(len(examples), count)
        self.run_shell("git init -q . && git add .")
        for example in examples:
            tags = self.folder / "tags"
            before = tags.read_bytes() if "--append" in example else b""
            if not before and tags.exists():
                tags.unlink()
            done = self.run_shell(example)
            self.assertEqual((done.returncode, done.stderr), (0, b""), example)
            written = tags.read_bytes() if tags.exists() else done.stdout
            self.assertTrue(written.startswith(b"!_TAG_FILE_FORMAT\t2\t"), example)
            self.assertGreater(written.count(b"\n"), max(5, before.count(b"\n")), example)

    def test_man_page(self):
        if not shutil.which("git"):
            self.skipTest("git is not installed")
        self.check_page("doc/vexltags.1", 6)

    def test_man_page_of_the_filter(self):
        self.check_page("doc/vexltags-portable.1", 2)

    def test_man_page_of_ctags(self):
        if not is_built("ctags"):
            self.skipTest("vexltags-ctags is not built")
        examples = man_examples("doc/vexltags-ctags.1")
        self.assertEqual(len(examples), 5)
        for example in examples:
            done = self.run_shell(example)
            self.assertEqual((done.returncode, done.stderr), (0, b""), example)
            written = done.stdout or (self.folder / "tags").read_bytes()
            self.assertGreater(written.count(b"\n"), 1, example)

    def tree(self, *arguments):
        """Runs vexltags-tree in the scratch folder and returns what it writes to `tags`."""
        if not is_built("tree"):
            self.skipTest("vexltags-tree is not built")
        done = subprocess.run([f"{PROGRAM}-tree", "--quiet", "--no-cache", *arguments], cwd=self.folder,
                              stderr=subprocess.PIPE, timeout=60, check=True)
        self.assertEqual(done.stderr, b"")
        return (self.folder / "tags").read_text(encoding="utf-8")

    def test_readme(self):
        name, source, written = re.search(
            r"In a project with this `(\S+)`\n\n```cpp\n(.*?)```\n\n`vexltags-tree` writes the file `tags`:"
            r"\n\n```\n(.*?)```", read("README.md"), re.DOTALL).groups()
        for path in self.folder.iterdir():
            path.unlink()
        (self.folder / name).write_text(source, encoding="utf-8")
        self.assertEqual(self.tree(), written)

    def test_readme_on_this_project(self):
        line = re.search(r"^grep -w '\^kVersion' tags$.*?^```\n(kVersion\t.*?\n)```", read("README.md"),
                         re.DOTALL | re.MULTILINE)[1]
        path = self.folder / line.split("\t")[1]
        path.parent.mkdir(parents=True)
        shutil.copy(ROOT / line.split("\t")[1], path)
        self.assertIn(line, self.tree().splitlines(keepends=True))

    def check_row(self, part):
        self.assertTrue(part in read("README.md"), f"no row of README.md has {part}")

    def test_readme_numbers(self):
        """The numbers of the table are those of the saved results."""
        rows = [line.split("|")[1:-1] for line in read("bench/results/recall-debian12.md").splitlines()
                if " of " in line and line.startswith("|")]
        recall = {row[0].strip(): [cell.split("/") for cell in (row[5], row[3])] for row in rows}
        other = ("GNUstep headers", "Objective-C sources", "Objective-C++ sources",
                 "Python's library", "Swift")
        for title, which in (("declarations found", 0), ("tags that are right", 1)):
            cells = []
            for program in (0, 1):
                values = [float(cell[program][which]) for name, cell in recall.items()
                          if name not in other]
                cells.append(f"{statistics.median(values):.1f} % ({min(values):.1f})")
            self.check_row(f"| C and C++: {title} | {cells[0]} | {cells[1]} |")
        result = json.loads(read("bench/results/tree-debian12.json"))
        wall, cpu = ({key: statistics.median(times) for key, times in result[kind].items()}
                     for kind in ("wall", "cpu"))
        self.check_row(f"| {wall['cold, --no-cache']:.1f} s, {cpu['cold, --no-cache']:.1f} s | "
                      f"{wall['ctags -R']:.1f} s, {cpu['ctags -R']:.1f} s |")
        self.check_row(f"| {wall['nothing edited']:.2f} s; {wall['one file edited']:.2f} s |")
        peak = {key: kib / 1024 for key, kib in result["peaks_kib"].items()}
        self.check_row(f"| peak memory | {peak['cold']:.0f} MB | {peak['ctags -R']:.0f} MB |")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True, help="the vexltags to test")
    options, rest = parser.parse_known_args()
    global PROGRAM
    PROGRAM = os.path.abspath(options.program)
    unittest.main(argv=[sys.argv[0], *rest])


if __name__ == "__main__":
    main()
