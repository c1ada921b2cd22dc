#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Edits a tree at random and checks that vexltags-tree with its cache writes what it writes without.

usage: tree_edits.py --program VEXLTAGS-TREE [--rounds N] [--seed N] [PART...]

Parts: edits, kills, pairs, damage, disk. Without one, all of them. A fault prints the seed and what
was done, and keeps the folder.
"""
import argparse
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time

WORDS = ["EXPORT", "BEGIN", "END", "DECLARE", "UNUSED", "API", "make_type", "Field"]
BODIES = ["", "class", "struct", "namespace inner {", "}", "int", "__attribute__((x))", "1", "static",
          "extern \"C\" {", "long", "\\\n  int", "/* nothing */", "other"]
FORMATS = [["--format=raw"], ["--format=raw", "--sort=no"], ["--format=raw", "--sort=foldcase"], [],
           ["--address=line"], ["--address=pattern", "--sort=foldcase"], ["--format=json"],
           ["--format=etags"], ["--exact", "--format=raw"], ["--sort=no"]]


class Tree:
    """A folder of made-up sources that can be changed."""

    def __init__(self, program, chance):
        self.program = program
        self.chance = chance
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="vexltags-tree-")).resolve()
        self.root = self.home / "tree"
        self.log = []
        for _ in range(12):
            self.add()

    def env(self, **more):
        return dict(os.environ, HOME=str(self.home), XDG_CACHE_HOME=str(self.home / "cache"),
                    PWD=str(self.root), LC_ALL="C", **more)

    def start(self, *arguments, **more):
        return subprocess.Popen([self.program, "-j2", *arguments], cwd=self.root, env=self.env(),
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, **more)

    def run(self, *arguments, **more):
        process = self.start(*arguments, **more)
        output, errors = process.communicate(timeout=120)
        return process.returncode, output, errors

    def text(self, kind):
        pick = self.chance.choice
        number = self.chance.randrange(1000)
        lines = []
        for _ in range(self.chance.randrange(1, 9)):
            number += 1
            lines.append(pick([
                f"int function{number}(int a) {{ return a; }}",
                f"class Class{number} {{ int member{number}; }};",
                f"struct {{ int x{number}; }} thing{number};",
                f"typedef struct {{ int y{number}; }} Type{number};",
                f"{pick(WORDS)} class Named{number} {{ int inside{number}; }};",
                f"{pick(WORDS)}(int, name{number})",
                f"{pick(WORDS)} int value{number};",
                f"namespace {{ int hidden{number}; }}",
                f"enum {{ One{number}, Two{number} }};",
                f"#define {pick(WORDS)} {pick(BODIES)}",
                f"#define {pick(WORDS)}(a, b) {pick(BODIES)} a b;",
                f"#include \"{pick(['a', 'b', 'sub/c', 'd'])}.h\"",
                f"#define MACRO{number} {number}",
                "int __anon3;" if self.chance.random() < 0.2 else f"int plain{number};",
                f"// \u00e9 {number}" if self.chance.random() < 0.5 else ")",
                f"int {'long' * self.chance.choice([1, 1, 1, 300])}{number};",
            ]))
        if kind == ".py":
            lines = [f"class P{number}:", f"    def method{number}(self):", "        pass"]
        if kind == ".swift":
            lines = [f"class S{number} {{", f"  func run{number}() {{}}", "}"]
        end = "\n" if self.chance.random() < 0.9 else ""
        return self.chance.choice(["\n", "\n", "\r\n"]).join(lines) + end

    def files(self):
        return sorted(path for path in self.root.rglob("*") if path.is_file()
                      and path.name not in ("tags", "TAGS", "tags.json"))

    def write(self, path, text):
        path.parent.mkdir(parents=True, exist_ok=True)
        if path.exists() and self.chance.random() < 0.5:
            new = path.with_name(path.name + "~")
            new.write_text(text, encoding="utf-8")
            new.rename(path)
        else:
            path.write_text(text, encoding="utf-8")

    def add(self):
        name = self.chance.choice(["a.h", "b.h", "sub/c.h", "d.h", "e.c", "f.cpp", "sub/g.m",
                                   "sub/deep/h.cc", "i.py", "j.swift", "sub/k.hpp", "l (m).c",
                                   f"n{self.chance.randrange(30)}.c"])
        path = self.root / name
        self.write(path, self.text(path.suffix))
        return f"write {name}"

    def edit(self):
        """Changes the tree in one way, and returns what it did."""
        files = self.files()
        what = self.chance.random()
        if what < 0.35 or len(files) < 3:
            return self.add()
        path = self.chance.choice(files)
        name = path.relative_to(self.root)
        if what < 0.5:
            path.unlink()
            return f"remove {name}"
        if what < 0.6:
            new = path.with_name("moved" + path.name[-12:])
            path.rename(new)
            return f"move {name} to {new.name}"
        if what < 0.65:
            os.utime(path)
            return f"touch {name}"
        if what < 0.7:
            # The same size and time, and another inode or none.
            status = path.stat()
            text = path.read_text(encoding="utf-8").replace("int", "xyz")
            path.write_text(text, encoding="utf-8")
            os.utime(path, ns=(status.st_atime_ns, status.st_mtime_ns + 1))
            return f"change {name} and keep its size"
        text = path.read_text(encoding="utf-8")
        lines = text.splitlines(keepends=True)
        if what < 0.85 and lines:
            del lines[self.chance.randrange(len(lines))]
        else:
            lines.insert(self.chance.randrange(len(lines) + 1), self.text(path.suffix) + "\n")
        self.write(path, "".join(lines))
        return f"edit {name}"

    def fault(self, message):
        print(f"{message}\nfolder: {self.home}", file=sys.stderr)
        for line in self.log[-30:]:
            print("  " + line, file=sys.stderr)
        sys.exit(1)

    def output_name(self, style):
        name = {"--format=json": "tags.json", "--format=etags": "TAGS"}
        return self.root / next((name[option] for option in style if option in name), "tags")

    def check(self, style, words=""):
        """The tags file is what a run without a cache writes."""
        status, expected, errors = self.run(*style, "--no-cache", "-q", "-f", "-")
        if status != 0:
            self.fault(f"{words}{style}: without a cache: {status} {errors.decode()}")
        found = self.output_name(style).read_bytes()
        if found != expected:
            (self.home / "expected").write_bytes(expected)
            self.fault(f"{words}{style}: the file is not what a run without a cache writes")

    def refresh(self, style, words=""):
        status, _, errors = self.run(*style, "-q")
        if status != 0 or errors:
            self.fault(f"{words}{style}: {status} {errors.decode()}")
        self.check(style, words)


def edits(tree, rounds):
    for _ in range(rounds):
        style = tree.chance.choice(FORMATS)
        output = tree.output_name(style)
        for _ in range(tree.chance.choice([0, 1, 1, 1, 2, 5])):
            tree.log.append(tree.edit())
        tree.log.append(f"refresh {style}")
        if tree.chance.random() < 0.1 and output.exists():
            output.unlink()
            tree.log.append("remove the tags file")
        tree.refresh(style)


def kills(tree, rounds):
    """Whenever a run is killed, the tags file is the old one or the new one, and the next is right."""
    for i in range(200):
        (tree.root / f"many{i}.c").write_text(tree.text(".c"), encoding="utf-8")
    begin = time.monotonic()
    tree.refresh([])
    longest = time.monotonic() - begin
    for _ in range(rounds):
        if tree.chance.random() < 0.2:
            shutil.rmtree(tree.home / "cache", ignore_errors=True)
            tree.log.append("remove the cache")
        old = (tree.root / "tags").read_bytes()
        for _ in range(tree.chance.choice([1, 1, 20])):
            tree.log.append(tree.edit())
        process = tree.start("-q", start_new_session=True)
        delay = tree.chance.random() ** 2 * longest
        time.sleep(delay)
        os.killpg(process.pid, tree.chance.choice([signal.SIGKILL, signal.SIGTERM, signal.SIGINT]))
        process.communicate(timeout=60)
        tree.log.append(f"kill after {delay:.4f} s")
        now = (tree.root / "tags").read_bytes()
        if now != old:
            tree.check([], "after a kill: ")
        tree.refresh([], "after a kill: ")
    left = [path.name for path in tree.root.iterdir() if ".new-" in path.name]
    if left:
        tree.fault(f"files were left over: {left}")


def pairs(tree, rounds):
    for _ in range(rounds):
        tree.log.append(tree.edit())
        if tree.chance.random() < 0.2:
            shutil.rmtree(tree.home / "cache", ignore_errors=True)
        runs = [tree.start("-q"), tree.start("-q")]
        for run in runs:
            _, errors = run.communicate(timeout=120)
            if run.returncode != 0 or errors:
                tree.fault(f"two at once: {run.returncode} {errors.decode()}")
        tree.check([], "two at once: ")
        tree.refresh([], "after two at once: ")


def damage(tree, rounds):
    tree.refresh([])
    for _ in range(rounds):
        for path in (tree.home / "cache/vexltags").iterdir():
            content = bytearray(path.read_bytes())
            how = tree.chance.random()
            if how < 0.2:
                del content[tree.chance.randrange(len(content) + 1):]
            elif how < 0.3:
                content = bytearray(os.urandom(len(content)))
            else:
                for _ in range(tree.chance.choice([1, 100])):
                    if content:
                        at = tree.chance.randrange(len(content))
                        content[at] ^= 1 << tree.chance.randrange(8)
            path.write_bytes(content)
        tree.log.append(f"damage; {tree.edit()}")
        status, _, errors = tree.run("-q")
        if status != 0 or len(errors.splitlines()) > 1:
            tree.fault(f"damaged cache: {status} {errors.decode()}")
        tree.check([], "damaged cache: ")
        tree.refresh([], "after a damaged cache: ")


def disk(tree, rounds):
    """With too little room the old tags stay, or the new ones are complete."""
    import resource
    tree.refresh([])
    for _ in range(rounds):
        tree.log.append(tree.edit())
        old = (tree.root / "tags").read_bytes()
        limit = tree.chance.choice([0, 100, 4096, 20000, 60000, 200000])

        def limit_size(limit=limit):
            resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit))

        status, _, errors = tree.run("-q", preexec_fn=limit_size)
        tree.log.append(f"no file above {limit}")
        if status not in (0, 1) or len(errors.splitlines()) > 2:
            tree.fault(f"full disk: {status} {errors.decode()}")
        if status == 0:
            tree.check([], "full disk: ")
        elif (tree.root / "tags").read_bytes() != old:
            tree.fault("full disk: the old tags are lost")
        tree.refresh([], "after a full disk: ")


PARTS = {"edits": (edits, 1), "kills": (kills, 0.3), "pairs": (pairs, 0.2), "damage": (damage, 0.3),
         "disk": (disk, 0.2)}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    parser.add_argument("--rounds", type=int, default=100)
    parser.add_argument("--seed", type=int, default=random.randrange(10**6))
    parser.add_argument("parts", nargs="*", choices=[[], *PARTS])
    arguments = parser.parse_args()
    for part in arguments.parts or PARTS:
        run, share = PARTS[part]
        tree = Tree(os.path.abspath(arguments.program), random.Random(arguments.seed))
        tree.log.append(f"seed {arguments.seed}, part {part}")
        run(tree, max(1, int(arguments.rounds * share)))
        shutil.rmtree(tree.home)
        print(f"{part}: no faults")


if __name__ == "__main__":
    main()
