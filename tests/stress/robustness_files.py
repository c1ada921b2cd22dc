# SPDX-License-Identifier: MIT
"""Tables of tests/stress/robustness.py: bad paths, output files, time limits."""
import os
import socket

from robustness_inputs import DEEP, NOBODY, Case, random_bytes


# --- Files ------------------------------------------------------------------------------------------


def make_folder(place):
    (place.folder / "folder.c").mkdir()
    return "folder.c"


def make_fifo(place):
    os.mkfifo(place.folder / "fifo.c")
    return "fifo.c"


def make_socket(place):
    # Bound by a short name, since the length of a socket's path is limited.
    here = os.open(".", os.O_RDONLY)
    with socket.socket(socket.AF_UNIX) as listener:
        short = f"/tmp/vexltags-{os.getpid()}-{id(place)}"
        listener.bind(short)
        os.rename(short, place.folder / "socket.c")
    os.close(here)
    return "socket.c"


def make_link(target):
    def make(place):
        os.symlink(target, place.folder / "link.c")
        return "link.c"
    return make


def make_circle(place):
    os.symlink("b.c", place.folder / "a.c")
    os.symlink("a.c", place.folder / "b.c")
    return "a.c"


def make_below_file(place):
    place.write("file.c", "void inside(void);\n")
    return "file.c/x"


def make_secret(place):
    place.write("secret.c", "void secret(void);\n")
    os.chmod(place.folder / "secret.c", 0)
    os.chmod(place.folder, 0o777)
    return "secret.c"


def make_closed_folder(place):
    (place.folder / "closed").mkdir()
    place.write("closed/a.c", "void secret(void);\n")
    os.chmod(place.folder / "closed", 0)
    os.chmod(place.folder, 0o777)
    return "closed/a.c"


def make_sparse(place):
    # Larger than the parsers can count.
    with open(place.folder / "sparse.c", "wb") as file:
        file.truncate(5 * 2**30)
    return "sparse.c"


def named(path):
    return lambda place: path


# Writes, cuts, empties and removes a file until told to stop.
CHANGER = """
import os, sys
path, stop = sys.argv[1:]
text = ''.join('void function_%d(int a);\\n' % i for i in range(20000))
turn = 0
while not os.path.exists(stop):
    turn += 1
    with open(path, 'w') as file:
        file.write(text)
    os.truncate(path, len(text) // (turn % 7 + 1))
    if turn % 3 == 0:
        os.truncate(path, 0)
    if turn % 5 == 0:
        os.remove(path)
"""


def file_cases():
    def bad(name, make, verb, **more):
        return Case("files/" + name, "bad-path", make=make, verb=verb, **more)
    yield bad("folder", make_folder, "reading")
    yield bad("fifo", make_fifo, "reading")
    yield bad("socket", make_socket, "reading")
    yield bad("device-full", named("/dev/full"), "reading", keeps_path=True)
    yield bad("device-endless", named("/dev/zero"), "reading", keeps_path=True)
    yield bad("terminal", named("/dev/tty"), "reading", keeps_path=True)
    yield bad("dangling-link", make_link("nowhere.c"), "opening", keeps_path=True)
    yield bad("circular-links", make_circle, "opening", keeps_path=True)
    yield bad("link-to-itself", make_link("link.c"), "opening", keeps_path=True)
    yield bad("below-a-file", make_below_file, "opening", keeps_path=True)
    yield bad("missing", named("missing.c"), "opening", keeps_path=True)
    yield bad("missing-folder", named("no/such/folder/a.c"), "opening", keeps_path=True)
    yield bad("name-too-long", named("a" * 5000), "opening", keeps_path=True)
    yield bad("path-too-long", named("a/" * 5000 + "a.c"), "opening", keeps_path=True)
    yield bad("unreadable", make_secret, "reading", user=NOBODY, needs_root=True)
    yield bad("in-a-closed-folder", make_closed_folder, "opening", keeps_path=True, user=NOBODY,
              needs_root=True)
    yield bad("larger-than-4-gib", make_sparse, "reading")
    yield bad("unknown-option", named("--no-such-option"), "opening", keeps_path=True)
    for word, name, escaped in [
            ("blank", b"a b.c", b"a\\ b.c"), ("blanks", b"  .c", b"\\ \\ .c"),
            ("tab", b"a\tb.c", b"a\\\tb.c"), ("newline", b"a\nb.c", b"a\\\nb.c"),
            ("carriage-return", b"a\rb.c", b"a\\\rb.c"), ("latin-1", b"\xe9\xe8.c", b"\xe9\xe8.c"),
            ("no-utf-8", b"\xff\xfe\xc0.c", b"\xff\xfe\xc0.c"),
            ("quotes", b"a\"b'.c", b"a\\\"b\\'.c"), ("brackets", b"(a)[b]<c>.c",
                                                     b"\\(a\\)\\[b\\]\\<c\\>.c"),
            ("backslash", b"a\\b.c", b"a\\b.c"), ("backslash-at-the-end", b"a\\", b"a\\"),
            ("wildcards", b"*?^.c", b"\\*\\?\\^.c"), ("percent", b"%s%n%d.c", b"%s%n%d.c"),
            ("control", b"\x01\x7f\x1b[2J.c", b"\x01\x7f\x1b\\[2J.c"),
            ("longest", b"a" * 250 + b".c", b"a" * 250 + b".c"), ("semicolon", b"a;\".c", b"a;\\\".c"),
            ("no-suffix", b"noname", b"noname"), ("utf-8", "\u4e2d\U0001f600.c".encode(),
                                                  "\u4e2d\U0001f600.c".encode())]:
        yield Case("files/name-" + word, "name", name_bytes=name, escaped=escaped)
    yield Case("files/changing-while-read", "changing")
    yield Case("files/list-of-100000", "list", text=lambda: "a.c\n" * 100000, count=100000)
    yield Case("files/list-of-missing", "list", text=lambda: "a.c\n" + "b.c\n" * 50000, count=1,
               stderr=b"failed opening b.c b.c\n")
    yield Case("files/list-of-nul", "list", text=lambda: b"\0" * 10**6 + b"a.c\0" * 3, count=3)
    yield Case("files/list-of-random", "list", text=lambda: random_bytes(10**6, 1) + b"\na.c\n",
               count=1, stderr=b"failed ")
    yield Case("files/list-of-one-long-line", "list", text=lambda: b"a" * (20 * 2**20),
               stderr=b"failed opening aaaaaaaa")
    yield Case("files/list-empty", "list", text=lambda: b"",
               stderr=b"reading from stdin not yet implemented\n")


# --- Output -----------------------------------------------------------------------------------------


def make_open_folder(place):
    (place.folder / "out").mkdir()
    return "out"


def make_locked_folder(place):
    (place.folder / "out").mkdir()
    os.chmod(place.folder / "out", 0o555)
    return "out/tags"


def make_locked_file(place):
    place.write("tags", b"old_tag\tx.c\t1;\"\tf\n")
    os.chmod(place.folder / "tags", 0o444)
    return "tags"


def make_below_output(place):
    place.write("file", b"")
    return "file/tags"


def output_cases():
    old = b"old_tag\tx.c\t1;\"\tf\n"
    yield Case("output/full-device", "full-device")
    yield Case("output/closed-pipe", "closed-pipe")
    yield Case("output/full-disk", "full-disk", left=old)
    yield Case("output/full-disk-append", "full-disk", arguments=("--append", "--sort=no"), left=old)
    yield Case("output/size-limit", "size-limit")
    yield Case("output/size-limit-replaces", "size-limit", arguments=("--append=no",), left=old)
    yield Case("output/size-limit-append", "size-limit", arguments=("--append", "--sort=no"), left=old)
    yield Case("output/folder-as-file", "unopenable", make=make_open_folder)
    yield Case("output/below-a-file", "unopenable", make=make_below_output)
    yield Case("output/name-too-long", "unopenable", make=named("t" * 5000))
    yield Case("output/link-to-itself", "unopenable", make=make_link("link.c"))
    yield Case("output/unwritable-folder", "unopenable", make=make_locked_folder, user=NOBODY,
               needs_root=True)
    yield Case("output/unwritable-file", "unopenable", make=make_locked_file, user=NOBODY,
               needs_root=True)


# --- Limits -----------------------------------------------------------------------------------------


def limit_cases(thorough):
    gave_up = ("Have been parsing ", " seconds -- skipping")
    spent = ("Spent ", " parsing PATH")

    def long_c():
        rows = "".join([f"A<int> f{i}(B<long> b);\n" for i in range(150000)])
        return "void before(void);\n" + rows + "#define LATE\n"

    def plain_c():
        # With --thorough, parameters of plain types are taken out before the grammar reads a type.
        rows = "".join([f"int f{i}(long b);\n" for i in range(150000)])
        return "void before(void);\n" + rows

    def long_swift():
        rows = "".join([f"func f{i}(a: Int) {{ b() }}\n" for i in range(200000)])
        return "func before() {}\n" + rows + "func late_tag() {}\n"

    def long_python():
        rows = "".join([f"def f{i}(a): return a\n" for i in range(400000)])
        return "def before(): pass\n" + rows + "def late_tag(): pass\n"

    # The time counts from before the lexer, so that a limit this small is over in any case once the
    # first type is read. A declaration that needs no type still gets its tag, but with --thorough
    # nothing after that is read.
    late = {"absent": ("f149999", "LATE")} if thorough else {"tags": ("LATE",), "absent": ("f149999",)}
    yield Case("limits/abort", "limit", ".c", long_c, arguments=("--abortIfLonger=0.01",),
               messages=(gave_up,), **late)
    yield Case("limits/abort-plain", "limit", ".c", plain_c, arguments=("--abortIfLonger=0.01",),
               messages=(gave_up,), absent=("f149999",))
    yield Case("limits/abort-before-report", "limit", ".c", long_c, messages=(gave_up,),
               arguments=("--abortIfLonger=0.01", "--reportIfLonger=0.01"), **late)
    yield Case("limits/report", "limit", ".c", long_c, messages=(spent,), tags=("LATE", "f149999"),
               arguments=("--reportIfLonger=0.01",))
    yield Case("limits/not-reached", "limit", ".c", long_c, tags=("LATE", "before", "f149999"),
               arguments=("--reportIfLonger=500", "--abortIfLonger=500"))
    yield Case("limits/off", "limit", ".c", long_c, tags=("LATE", "f149999"),
               arguments=("--reportIfLonger=0", "--abortIfLonger=0"))
    for suffix, text in ((".swift", long_swift), (".py", long_python)):
        yield Case("limits/no-abort" + suffix, "limit", suffix, text, tags=("late_tag", "before"),
                   arguments=("--abortIfLonger=0.0001",))
        yield Case("limits/report" + suffix, "limit", suffix, text, tags=("late_tag", "before"),
                   messages=(spent,), arguments=("--reportIfLonger=0.01",))
    yield Case("limits/abort-in-depth", "limit", ".c",
               lambda: "int a = " + "f(" * DEEP + ")" * DEEP + ";\n" + long_c(),
               arguments=("--abortIfLonger=0.01",), messages=(gave_up,), **late)


def cases(thorough):
    """Every case that is about files."""
    yield from file_cases()
    yield from output_cases()
    yield from limit_cases(thorough)
