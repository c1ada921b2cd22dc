#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests vexltags-tree: its output against one run of vexltags, its files, and its manual.

usage: tree_test.py --program VEXLTAGS [-v] [TEST...]

vexltags-tree is in the program's folder.
"""
import argparse
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PROGRAM = ""


def wait_for(condition, seconds=20):
    """Waits until the condition holds; returns whether it did."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if condition():
            return True
        time.sleep(0.02)
    return False


class Scratch(unittest.TestCase):
    """A folder with sources, and a home without a cache."""

    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="vexltags-")).resolve()
        self.addCleanup(shutil.rmtree, self.home)
        self.root = self.home / "tree"
        self.root.mkdir()
        self.env = dict(os.environ, HOME=str(self.home), PWD=str(self.root), LC_ALL="C",
                        XDG_CACHE_HOME=str(self.home / "cache"))

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
        return path

    def tree(self, *arguments, status=0):
        done = subprocess.run([f"{PROGRAM}-tree", *arguments], cwd=self.root, env=self.env,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, timeout=300)
        self.assertEqual(done.returncode, status, done.stderr)
        return done

    def names(self):
        lines = (self.root / "tags").read_text(encoding="utf-8").splitlines()
        return [line.split("\t")[0] for line in lines if not line.startswith("!_")]


class SameAsOneRun(Scratch):
    """Raw output is that of one run over the list, whatever the order and the number of workers."""

    def compare(self, *options):
        listed = self.tree("--list").stdout
        (self.home / "list").write_bytes(listed)
        self.assertGreater(len(listed.splitlines()), 0)
        for sort in ("no", "yes", "foldcase"):
            expected = subprocess.run(
                [PROGRAM, f"--sort={sort}", "-L", str(self.home / "list"), "-f", "-",
                 *(["--thorough"] if "--exact" not in options else [])],
                cwd=self.root, env=self.env, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                check=True).stdout
            for jobs in ("1", "3"):
                found = self.tree(*options, "--format=raw", "--sort", sort, "-j", jobs, "-f", "-",
                                  "--no-cache").stdout
                self.assertEqual(found, expected, (sort, jobs))

    def test_cases(self):
        for folder in ("cases", "tokens", "recall"):
            shutil.copytree(ROOT / "tests" / folder, self.root / folder)
        self.compare("--exact")
        self.compare()

    def test_made_up_names(self):
        for i in range(30):
            self.write(f"a{i}.c", f"struct {{ int x{i}; }} y{i};\ntypedef struct {{ int z; }} t;\n")
        self.write("a7.c", "struct { int x; } a;\nint __anon1;\nstruct { int y; } b;\n")
        self.write("a8.c", "struct { struct { int " + "q" * 970 + "; } a; } b;\nint after;\n" * 3)
        self.compare("--exact")
        self.compare()

    def test_lines_that_are_cut(self):
        self.write("a.c", "namespace " + "n" * 1200 + " { int x; struct S {}; }\n")
        self.write("b.c", "int first;\n")
        self.write("c.c", "enum { E" + "e" * 2000 + " };\nnamespace " + "m" * 1100 + " { int z; }\n")
        self.write("d.c", "struct { int " + "long" * 400 + "; } x;\n")
        self.compare("--exact")


class Behaviour(Scratch):
    def test_reads_what_git_would_track(self):
        self.write("a.c", "int a;\n")
        self.write("ignored.c", "int b;\n")
        self.write(".gitignore", "ignored.c\n")
        subprocess.run(["git", "init", "-q"], cwd=self.root, check=True)
        self.tree()
        self.assertEqual(self.names(), ["a"])
        self.tree("--include", "ignored.c")
        self.assertEqual(self.names(), ["a", "b"])

    @unittest.skipUnless(shutil.which("git"), "git is not installed")
    def test_reads_the_whole_work_tree_from_a_folder_in_it(self):
        self.write("top.c", "int top;\n")
        self.write("src/below.c", "WRAPPED int below;\n")
        self.write("src/more/deep.c", "int deep;\n")
        self.write("build/made.c", "int made;\n")
        self.write("macros/m.h", "#define WRAPPED\n")
        self.write(".gitignore", "/build\n/macros\n/tags\n")
        subprocess.run(["git", "init", "-q"], cwd=self.root, check=True)
        top = self.root

        def run_in(folder, *arguments):
            self.root = top / folder
            try:
                return self.tree(*arguments)
            finally:
                self.root = top

        done = run_in("src", "--macros", "../macros")
        self.assertEqual(self.names(), ["below", "deep", "top"])
        self.assertIn(str(top / "tags").encode(), done.stderr)
        self.assertFalse((top / "src" / "tags").exists())
        fields = {line.split("\t")[1] for line in (top / "tags").read_text().splitlines()
                  if not line.startswith("!_")}
        self.assertEqual(fields, {"src/below.c", "src/more/deep.c", "top.c"})
        self.assertEqual(self.tree("--macros", str(top / "macros")).stderr.count(b" 0 read"), 1,
                         "the top has the same cache")
        listed = run_in("src", "--list").stdout
        self.assertEqual(listed, b"below.c\nmore/deep.c\n../top.c\n")
        (top / "tags").unlink()
        # What is asked for, or not part of the project, stays where it is.
        self.assertEqual(run_in("src", "-f", "-", "--sort=no").stdout.count(b"\ttop.c\t"), 0)
        run_in("src", ".")
        run_in("src/more", "--no-git")
        run_in("build")
        self.assertEqual([(top / folder / "tags").exists() for folder in
                          ("", "src", "src/more", "build")], [False, True, True, True])
        # A home directory in git is not a project.
        subprocess.run(["git", "init", "-q"], cwd=self.home, check=True)
        shutil.rmtree(top / ".git")
        run_in("src/more")
        self.assertFalse((self.home / "tags").exists())

    def test_only_changed_files_are_read(self):
        for i in range(20):
            self.write(f"a{i}.c", f"API int f{i}();\n" if i < 3 else f"int f{i}();\n")
        self.write("api.h", "#define API\n")
        self.assertIn(b"21 read", self.tree().stderr)
        self.assertIn(b"0 read, up to date", self.tree().stderr)
        self.write("a5.c", "int g5();\n")
        self.assertIn(b", 1 read", self.tree().stderr)
        self.assertIn("g5", self.names())
        self.assertNotIn("f5", self.names())
        time.sleep(0.05)
        self.tree()
        # The header, and the three files in which the word occurs.
        self.write("api.h", "#define API static\n")
        self.assertIn(b", 4 read", self.tree().stderr)
        (self.root / "a6.c").unlink()
        self.assertIn(b" 20 files, 0 read", self.tree().stderr)
        self.assertNotIn("f6", self.names())

    def test_a_touched_file_is_not_read(self):
        path = self.write("a.c", "int a;\n")
        self.tree()
        os.utime(path, (1, 1))
        before = (self.root / "tags").stat().st_ino
        self.assertIn(b", 0 read, up to date", self.tree().stderr)
        self.assertEqual((self.root / "tags").stat().st_ino, before)

    def test_the_same_size_and_time(self):
        path = self.write("a.c", "int a;\n")
        os.utime(path, (1, 1))
        self.tree()
        path.unlink()
        self.write("other", "")  # Takes the inode, on some file systems.
        path = self.write("a.c", "int b;\n")
        os.utime(path, (1, 1))
        self.tree()
        self.assertEqual(self.names(), ["b"])

    def test_refuses_what_is_no_tags_file(self):
        self.write("a.c", "int a;\n")
        self.write("precious", "some text\n")
        (self.root / "folder").mkdir()
        for target, reason in (("precious", "is not a tags file"), ("a.c", "is not a tags file"),
                               ("folder", "is a folder"),
                               ("/dev/null", "is not a regular file")):
            done = self.tree("-f", target, status=1)
            self.assertIn(reason, done.stderr.decode())
        self.assertEqual((self.root / "precious").read_text(), "some text\n")
        for format_name in ("tags", "raw", "json", "etags"):
            self.tree("-f", "out", "--format", format_name)
            self.tree("-f", "out", "--format", format_name)

    def test_replaces_the_target_of_a_link(self):
        self.write("a.c", "int a;\n")
        self.write("real", "")
        (self.root / "tags").symlink_to("real")
        self.tree()
        self.assertTrue((self.root / "tags").is_symlink())
        self.assertEqual(self.names(), ["a"])

    def test_keeps_the_old_file_if_writing_fails(self):
        self.write("a.c", "int a;\n")
        self.tree()
        self.write("b.c", "int b;\n" * 5000)
        done = subprocess.run(["sh", "-c", f"ulimit -f 1; exec '{PROGRAM}-tree' --no-cache"],
                              cwd=self.root, env=self.env, stderr=subprocess.PIPE, timeout=60)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr, b"vexltags-tree: error writing tags\n")
        self.assertEqual(self.names(), ["a"])
        self.assertEqual(sorted(os.listdir(self.root)), ["a.c", "b.c", "tags"])

    def test_removes_caches_that_are_not_used(self):
        self.write("a.c", "int a;\n")
        folder = self.home / "cache" / "vexltags"
        self.tree()
        used = set(os.listdir(folder))
        old = [folder / f"{number:016x}.db" for number in range(3)]
        for path in [*old, *(folder / name for name in used)]:
            path.touch()
            os.utime(path, (time.time() - 100 * 86400,) * 2)
        self.tree()
        self.assertTrue(old[0].exists(), "no cache was made")
        self.tree("--exact")
        left = set(os.listdir(folder))
        self.assertTrue(used < left, "it has been used")
        self.assertFalse(left & {path.name for path in old})

    def test_goes_on_without_a_cache(self):
        self.write("a.c", "int a;\n")
        (self.home / "cache").write_text("a file")
        done = self.tree()
        self.assertIn(b"working without a cache", done.stderr)
        self.assertEqual(self.names(), ["a"])

    def test_a_dead_worker_costs_one_file(self):
        self.write("small.c", "int small;\n")
        self.write("big.c", "int f() { if (a) { b(c, d); } }\n" * 1500000)
        self.write("z.c", "int last;\n")
        process = subprocess.Popen([f"{PROGRAM}-tree", "-j1", "--exact"], cwd=self.root,
                                   env=self.env, stderr=subprocess.PIPE)
        children = pathlib.Path(f"/proc/{process.pid}/task")

        def worker():
            for task in children.iterdir():
                for child in (task / "children").read_text().split():
                    status = pathlib.Path(f"/proc/{child}/stat").read_text().rsplit(") ")[1].split()
                    if int(status[11]) + int(status[12]) >= 10:
                        return int(child)
            return None

        found = []
        self.assertTrue(wait_for(lambda: found.append(worker()) or found[-1] is not None))
        os.kill(found[-1], signal.SIGKILL)
        _, errors = process.communicate(timeout=300)
        self.assertEqual(process.returncode, 0)
        self.assertIn(b"big.c: the worker that read it died; it has no tags", errors)
        self.assertEqual(self.names(), ["last", "small"])

    def test_unreadable_file(self):
        if os.geteuid() == 0:
            self.skipTest("root can read everything")
        self.write("a.c", "int a;\n").chmod(0)
        self.write("b.c", "int b;\n")
        self.assertIn(b"a.c: cannot be read", self.tree().stderr)
        self.assertEqual(self.names(), ["b"])

    def test_report(self):
        self.write("a.c", "#define KNOWN class\nint a;\n)\n) UNKNOWN_THING int b;\n")
        lines = self.tree("--report").stdout.decode().splitlines()
        self.assertIn("a.c:3: could not be read as a declaration; 2 tokens skipped in the file",
                      lines)
        self.assertIn("learned macro KNOWN in a.c", lines)
        self.assertIn("unknown macro? UNKNOWN_THING in a.c", lines)

    def test_watch(self):
        self.write("a.c", "int a;\n")
        process = subprocess.Popen([f"{PROGRAM}-tree", "--watch", "-q"], cwd=self.root,
                                   env=self.env, stderr=subprocess.PIPE)
        try:
            self.assertTrue(wait_for((self.root / "tags").exists))
            self.write("a.c", "int b;\n")
            self.assertTrue(wait_for(lambda: self.names() == ["b"]), self.names())
            self.write("new/folder/c.c", "int c;\n")
            self.assertTrue(wait_for(lambda: self.names() == ["b", "c"]), self.names())
            (self.root / "a.c").unlink()
            self.assertTrue(wait_for(lambda: self.names() == ["c"]), self.names())
        finally:
            process.terminate()
        _, errors = process.communicate(timeout=60)
        self.assertEqual((process.returncode, errors), (0, b""))

    def test_a_folder_after_an_option_with_a_value(self):
        for name in ("a/x.c", "a/y.c", "b/z.c", "c/w.c"):
            self.write(name, "int n;\n")
        header = self.write("m.h", "#define M int\n")
        for options in (["--exclude", "x.c"], ["--exclude=x.c"], ["--include=w.c", "--exclude", "x.c"]):
            listed = self.tree("--list", *options, "a").stdout.split()
            self.assertEqual(listed, [b"a/y.c"], options)
        listed = self.tree("--list", "--macros", str(header), "--macros", "c", "a", "b").stdout.split()
        self.assertEqual(listed, [b"a/x.c", b"a/y.c", b"b/z.c"])

    def test_mistakes(self):
        self.write("a.c", "int a;\n")
        for arguments in (["--format=xml"], ["-j0"], ["--languages=Cobol"], ["--unknown"],
                          ["--watch", "-f", "-"]):
            done = self.tree(*arguments, status=2)
            self.assertTrue(done.stderr.startswith(b"vexltags-tree: "), done.stderr)
        self.assertFalse((self.root / "tags").exists())
        self.tree("missing", status=1)


class Manual(Scratch):
    """The manual page and the completions have the options that --help shows."""

    OPTION = r"(?<![\w-])--?[A-Za-z](?:[A-Za-z-]*[A-Za-z])?"

    def options(self):
        lines = self.tree("--help").stdout.decode().split("Options:\n")[1].splitlines()
        return {option for line in lines if line.startswith("  -")
                for option in re.findall(self.OPTION, line[2:].split("  ")[0])}

    def read(self, name):
        return (ROOT / name).read_text(encoding="utf-8")

    def test_manual_page(self):
        self.assertIn("--watch", self.options())
        page = self.read("doc/vexltags-tree.1")
        section = page.split(".SH OPTIONS\n")[1].split("\n.SH ")[0]
        heads = " ".join(re.findall(r"^\.TP\n(.*)$", section, re.MULTILINE))
        heads = re.sub(r"\\f[BIRP]", "", heads).replace("\\-", "-")
        self.assertEqual(set(re.findall(self.OPTION, heads)), self.options())
        version = self.tree("--version").stdout.decode().strip().split(" v")[1]
        self.assertIn(f'"vexltags {version}"', page)

    def test_completions(self):
        script = self.read("completions/vexltags-tree.bash")
        words = script.split("compgen -W '\n")[1].split("'")[0]
        self.assertEqual(set(words.split()), self.options())
        fish = self.read("completions/vexltags-tree.fish")
        found = {"--" + name for name in re.findall(r" -l (\S+)", fish)}
        found |= {"-" + name for name in re.findall(r" -s (\S+)", fish)}
        self.assertEqual(found, self.options())
        zsh = self.read("completions/_vexltags-tree")
        found = set()
        for line in re.findall(r"^ +('.*)$", zsh, re.MULTILINE):
            names = re.sub(r"'\(.*?\)'", "", line).split("[")[0]
            found |= set(re.findall(self.OPTION, names))
        self.assertEqual(found, self.options())


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    known, rest = parser.parse_known_args()
    PROGRAM = os.path.abspath(known.program)
    unittest.main(argv=[sys.argv[0], *rest])
