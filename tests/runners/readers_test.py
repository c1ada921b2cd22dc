#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that another program finds every definition through the formats that are made for it.

  tests/runners/readers_test.py --program VEXLTAGS --probe FORMAT_PROBE READER

READER is vim, neovim, readtags, ctags, emacs or python. Exits with status 77 if it is not installed.
The sources have lines, names and paths that are hard to express; FINDS has the place of each
definition, read from the sources. Vim, Neovim and Emacs also look for the definitions after edits.
"""
import argparse
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
SKIPPED = 77

SOURCES = {
    "odd.cc": b"int first_line;\n"
    b"int dollar; // $\n"
    b"int dollars; // $ $$\n"
    b"int back; // \\ \\n\n"
    b'const char* quoted = "x;\\"\ty";\n'
    b"int slash = 4 / 2; /* / // */\n"
    b"struct A {\n"
    b"  int same;\n"
    b"};\n"
    b"struct B {\n"
    b"  int same;\n"
    b"};\n"
    b"\tint\ttabs;\t\n"
    b"int magic; // * . [a] ~ ^ | & \\( \\) \\[ \\] \\{ \\+ \\| \\< \\v\n"
    b"/*\n"
    b"^*/ int caret;\n"
    b"bool operator==(A, A) { return true; }\n"
    b"int del\x7f; int control; // \x01 \x0c\n"
    b"int " + b"l" * 150 + b" = 1, long_line;\n"
    b"int same_long_" + b"l" * 120 + b"1;\n"
    b"int same_long_" + b"l" * 120 + b"2;\n"
    b"int wide; /* " + "é".encode() * 60 + b" */\n"
    b"int last_line;",
    "latin.c": b"/* caf\xe9 */ int after_byte;\nint cut; /* caf\xe9 */\n/* \xe9 */ int again;\n",
    "utf8.c": "int plain; /* é € 😀 */\n/* é */ int accent;\n".encode(),
    "mark.c": b"\xef\xbb\xbfint marked;\nint second;\n",
    "dos.c": b"int dos_one;\r\n\r\nint dos_two; // $\r\nint dos_last;\r\n",
    "mixed.c": b"int unix;\nint carriage;\r\nint inner; /* a\rb */\nint after_inner;\n",
    "a dir/b,c.c": b"\nint in_blank;\n",
    "per%cent#.c": b"int percent;\n",
    "~tilde.c": b"int tilde;\n",
    "{a,b}'q'.c": b"int braces;\n",
    "dol$/a.c": b"int dollar_path;\n",
    "[x]*?.c": b"int wild;\n",
    "back\\tslash.c": b"int backslash;\n",
    "Shape.m": b"@implementation Shape\n- (void)setWidth:(int)w height:(int)h {\n}\n"
    b"+ (id)shape {\n}\n@end\n",
    "body.swift": b"class Body {\n  func move(to x: Int, _ y: Int) {}\n  init() {}\n}\n"
    b"func +++ (a: Body, b: Body) {}\n",
    "stack.py": b"class Stack:\n    def push(self):\n        pass\n",
}

# Name: path and line.
FINDS = {
    "first_line": ("odd.cc", 1),
    "dollar": ("odd.cc", 2),
    "dollars": ("odd.cc", 3),
    "back": ("odd.cc", 4),
    "quoted": ("odd.cc", 5),
    "slash": ("odd.cc", 6),
    "tabs": ("odd.cc", 13),
    "magic": ("odd.cc", 14),
    "caret": ("odd.cc", 16),
    "operator ==": ("odd.cc", 17),
    "control": ("odd.cc", 18),
    "long_line": ("odd.cc", 19),
    "same_long_" + "l" * 120 + "1": ("odd.cc", 20),
    "same_long_" + "l" * 120 + "2": ("odd.cc", 21),
    "wide": ("odd.cc", 22),
    "last_line": ("odd.cc", 23),
    "after_byte": ("latin.c", 1),
    "cut": ("latin.c", 2),
    "again": ("latin.c", 3),
    "plain": ("utf8.c", 1),
    "accent": ("utf8.c", 2),
    "marked": ("mark.c", 1),
    "second": ("mark.c", 2),
    "dos_one": ("dos.c", 1),
    "dos_two": ("dos.c", 3),
    "dos_last": ("dos.c", 4),
    "unix": ("mixed.c", 1),
    "carriage": ("mixed.c", 2),
    "inner": ("mixed.c", 3),
    "after_inner": ("mixed.c", 4),
    "in_blank": ("a dir/b,c.c", 2),
    "percent": ("per%cent#.c", 1),
    "tilde": ("~tilde.c", 1),
    "braces": ("{a,b}'q'.c", 1),
    "dollar_path": ("dol$/a.c", 1),
    "wild": ("[x]*?.c", 1),
    "backslash": ("back\\tslash.c", 1),
    "setWidth:height:": ("Shape.m", 2),
    "shape": ("Shape.m", 4),
    "Body": ("body.swift", 1),
    "move(to:,_)": ("body.swift", 2),
    "+++(a:,b:)": ("body.swift", 5),
    "Stack": ("stack.py", 1),
    "push": ("stack.py", 2),
}

# Lines put before the sources, and lines of `odd.cc` removed, for the search after edits.
ADDED = b"// added\n" * 40
REMOVED = 5
# What the search texts do not tell apart: a line that starts with a byte that is not UTF-8, and the second
# of two lines that differ after the search text. Only the line number finds them.
ONLY_BY_LINE = {"again", "same_long_" + "l" * 120 + "2"}

VIM = """
set tags=tags hidden
let found = []
for name in readfile('names')
  try
    silent execute 'tag ' . name
    call add(found, name . "\\t" . expand('%:p') . "\\t" . line('.'))
  catch
    call add(found, name . "\\t" . v:exception . "\\t0")
  endtry
endfor
call writefile(found, 'found')
qall!
"""

EMACS = r"""
(load (expand-file-name "init.el") nil t)
(setq large-file-warning-threshold nil)
(visit-tags-table (expand-file-name "TAGS"))
(defun names ()
  (with-temp-buffer (insert-file-contents "names") (split-string (buffer-string) "\n" t)))
(defun where (name)
  (format "%s\t%s\t%d\n" name (buffer-file-name) (line-number-at-pos)))
(let ((file (expand-file-name "found")) found)
  (dolist (name (names))
    (push (condition-case problem
              (progn (find-tag name) (where name))
            (error (format "%s\t%S\t0\n" name problem)))
          found)
    (push (condition-case problem
              (let ((item (car (xref-backend-definitions 'etags name))))
                (with-current-buffer (marker-buffer (xref-location-marker (xref-item-location item)))
                  (goto-char (xref-location-marker (xref-item-location item)))
                  (where name)))
            (error (format "%s\t%S\t0\n" name problem)))
          found))
  (with-temp-file file (dolist (line (reverse found)) (insert line))))
"""


def skip(program):
    print(f"{program} is not installed")
    sys.exit(SKIPPED)


def need(program):
    if shutil.which(program) is None:
        skip(program)


class Project:
    """The sources in a folder, with their tags in each format."""

    def __init__(self, folder, options):
        self.folder = pathlib.Path(folder).resolve()
        self.options = options
        self.write({name: text for name, text in SOURCES.items()})
        command = [options.program, "--sort=no", "--tag-relative", "-f", "-", *SOURCES]
        self.raw = self.run(command).stdout

    def write(self, files):
        for name, text in files.items():
            path = self.folder / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(text)

    def run(self, command, **more):
        environment = {"PATH": os.environ["PATH"], "HOME": str(self.folder), "LC_ALL": "C.UTF-8",
                       "TERM": "dumb"}
        return subprocess.run(command, cwd=self.folder, env=environment, check=True, timeout=120,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              **({"stdin": subprocess.DEVNULL} | more))

    def convert(self, form):
        self.write(SOURCES)
        result = self.run([self.options.probe, form], stdin=None, input=self.raw)
        return result.stdout

    def found(self):
        """The lines that an editor wrote: the name, the file relative to the folder, the line."""
        result = []
        for line in (self.folder / "found").read_text(errors="replace").splitlines():
            name, path, number = line.split("\t")
            result.append((name, os.path.relpath(self.folder / path, self.folder), int(number)))
        return result


def differences(title, found, expected):
    for name, place in expected.items():
        places = [entry[1:] for entry in found if entry[0] == name]
        if not places or any(one != place for one in places):
            yield f"{title}: {name[:40]}: expected {place}, found {places}"


def with_lines_added(text):
    mark = b"\xef\xbb\xbf"
    lines = ADDED.replace(b"\n", b"\r\n") if b"\n" not in text.replace(b"\r\n", b"") else ADDED
    return mark + lines + text[len(mark):] if text.startswith(mark) else lines + text


def edits():
    """The sources with lines added, with lines removed, and the places after each."""
    yield "as tagged", SOURCES, FINDS
    added = {name: with_lines_added(text) for name, text in SOURCES.items()}
    count = ADDED.count(b"\n")
    places = {name: (path, line + count) for name, (path, line) in FINDS.items()
              if name not in ONLY_BY_LINE}
    yield "lines added", added, places
    rest = b"".join(SOURCES["odd.cc"].splitlines(keepends=True)[REMOVED:])
    moved = {name: (path, line - REMOVED) for name, (path, line) in FINDS.items()
             if path == "odd.cc" and line > REMOVED and name not in ONLY_BY_LINE}
    yield "lines removed", {"odd.cc": rest}, moved


def check_vim(project, command):
    (project.folder / "try.vim").write_text(VIM)
    for form in ("combined", "pattern", "line"):
        (project.folder / "tags").write_bytes(project.convert(form))
        for title, files, places in edits():
            if form == "line" and files is not SOURCES:
                continue
            project.write(SOURCES)
            project.write(files)
            (project.folder / "names").write_text("".join(f"{name}\n" for name in places))
            project.run(command)
            yield from differences(f"{form}, {title}", project.found(), places)
    # Of equal lines, only the combined address finds the right one. The tags file has that on line 11
    # first, since it is sorted by bytes.
    (project.folder / "names").write_text("same\n")
    (project.folder / "tags").write_bytes(project.convert("combined"))
    for tag, line in (("1tag", 11), ("2tag", 8)):
        (project.folder / "try.vim").write_text(VIM.replace("'tag '", f"'{tag} '"))
        project.run(command)
        yield from differences(f"equal lines, {tag}", project.found(), {"same": ("odd.cc", line)})


def check_readtags(project):
    need("readtags")
    for form in ("combined", "pattern", "line"):
        (project.folder / "tags").write_bytes(project.convert(form))
        found = []
        for name in FINDS:
            output = project.run(["readtags", "-e", "-n", name]).stdout
            for line in output.decode("utf-8", "replace").split("\n")[:-1]:
                fields = line.split("\t")
                number = re.search(r"\tline:(\d+)", line) or re.match(r"(\d+)(?=;\")", fields[2])
                found.append((fields[0], fields[1], int(number[1]) if number else 0))
        yield from differences(form, found, FINDS)
        listed = project.run(["readtags", "-e", "-Q", '(eq? $line 16)', "-l"]).stdout
        if b"caret" not in listed:
            yield f"{form}: the line of a tag is not known to a query"


def check_ctags(project):
    """Universal Ctags writes the same search patterns for the same lines."""
    need("ctags")
    if "Universal" not in project.run(["ctags", "--version"]).stdout.decode():
        skip("Universal Ctags")
    # It keeps bytes that are not UTF-8, ends lines at a carriage return, and writes no `$` for a last line
    # without a newline.
    names = [name for name in SOURCES if name.endswith((".c", ".cc")) and name not in
             ("latin.c", "mixed.c")]
    theirs = project.run(["ctags", "-f", "-", "--sort=no", "--excmd=pattern", "--fields=n", *names])

    def patterns(text):
        found = {}
        for line in text.split(b"\n"):
            match = re.fullmatch(rb'([^\t!]*)\t([^\t]*)\t(/.*/);"\t.*line:(\d+).*', line)
            if match:
                found[match[2], int(match[4])] = match[3]
        return found

    ours, theirs = patterns(project.convert("pattern")), patterns(theirs.stdout)
    common = (ours.keys() & theirs.keys()) - {(b"odd.cc", FINDS["last_line"][1])}
    if len(common) < 20:
        yield f"only {len(common)} lines in common"
    for place in sorted(common):
        if ours[place] != theirs[place]:
            yield f"{place}: {ours[place]}, Universal Ctags writes {theirs[place]}"
    if b"json" in project.run(["ctags", "--list-features"]).stdout:
        yield from json_differences(project, names)


def json_differences(project, names):
    """Where an object has a field that Universal Ctags gives another value, or does not have."""

    def by_place(text):
        objects = [json.loads(line) for line in text.decode("utf-8").splitlines()]
        return {(one["name"], one["path"], one["line"]): one for one in objects}

    ours = by_place(project.convert("json"))
    theirs = by_place(project.run(["ctags", "-f", "-", "--output-format=json", "--fields=*", *names])
                      .stdout)
    common = {place for place in ours.keys() & theirs.keys() if place[0] != "last_line"}
    if not any("scope" in ours[place] for place in common):
        yield "no member is in common"
    for place in sorted(common):
        for field, value in ours[place].items():
            if theirs[place].get(field) != value:
                yield f"{place}: {field} is {value}, Universal Ctags writes {theirs[place].get(field)}"


def check_emacs(project):
    need("emacs")
    (project.folder / "TAGS").write_bytes(project.convert("etags"))
    # The set-up of the page, with which a name is found by its first word, too.
    page = (ROOT / "editors/emacs.md").read_text(encoding="utf-8")
    (project.folder / "init.el").write_text(re.search(r"^```lisp\n(.*?)^```$", page, re.M | re.S)[1])
    (project.folder / "try.el").write_text(EMACS)
    for title, files, places in edits():
        project.write(SOURCES)
        project.write(files)
        (project.folder / "names").write_text("".join(f"{name}\n" for name in places))
        project.run(["emacs", "-Q", "--batch", "-l", "try.el"])
        yield from differences(title, project.found(), places)
    project.write(SOURCES)
    first_words = {"move": FINDS["move(to:,_)"], "setWidth": FINDS["setWidth:height:"]}
    (project.folder / "names").write_text("".join(f"{name}\n" for name in first_words))
    project.run(["emacs", "-Q", "--batch", "-l", "try.el"])
    yield from differences("first words", project.found(), first_words)


def check_python(project):
    """JSON: every line is an object, and the fields are those of Universal Ctags."""
    found = []
    for line in project.convert("json").decode("utf-8").splitlines():
        tag = json.loads(line)
        if tag["_type"] != "tag" or not tag["kind"].isalpha():
            yield f"odd object {line}"
        known = {"_type", "name", "path", "pattern", "language", "line", "typeref", "kind", "scope",
                 "scopeKind"}
        if not tag.keys() <= known:
            yield f"unknown fields in {line}"
        text = re.fullmatch(r"/\^(.*?)(\$?)/", tag["pattern"], re.DOTALL)[1]
        source = SOURCES[tag["path"]].split(b"\n")[tag["line"] - 1].decode("utf-8", "replace")
        if not source.lstrip("\ufeff").startswith(re.sub(r"\\(.)", r"\1", text)):
            yield f"{tag['name'][:40]}: the pattern {tag['pattern']} is not that of its line"
        found.append((tag["name"], tag["path"], tag["line"]))
    yield from differences("json", found, FINDS)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True, help="the vexltags to test")
    parser.add_argument("--probe", required=True, help="the program format_probe")
    parser.add_argument("reader", choices=["vim", "neovim", "readtags", "ctags", "emacs", "python"])
    options = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="vexltags-") as folder:
        project = Project(folder, options)
        if options.reader == "vim":
            need("vim")
            faults = check_vim(project, ["vim", "-u", "NONE", "-i", "NONE", "-N", "-n", "-T", "dumb",
                                         "--not-a-term", "-S", "try.vim"])
        elif options.reader == "neovim":
            need("nvim")
            faults = check_vim(project, ["nvim", "--headless", "-u", "NONE", "-i", "NONE", "-n", "-S",
                                         "try.vim"])
        else:
            faults = globals()[f"check_{options.reader}"](project)
        faults = list(faults)
    for fault in faults:
        print(fault)
    print(f"{options.reader}: {len(FINDS)} definitions, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
