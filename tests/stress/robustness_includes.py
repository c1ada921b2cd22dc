# SPDX-License-Identifier: MIT
"""Cases of tests/stress/robustness.py about what --thorough reads to learn macros: includes, --macros."""
import os
import resource
import socket

from robustness_inputs import NOBODY, QUICK, Case
from robustness_place import require, require_tags

CASES = []
USES = "MADE(used_tag)\n"
DEFINES = "#define MADE(x) int x;\n"


def case(function):
    """Makes a case of a function that takes a `Place`; its name is what is included."""
    CASES.append(Case("includes/" + function.__name__.replace("_", "-"), "function", make=function))
    return function


def includes(*names):
    return "".join(f'#include "{name}"\n' for name in names)


def thorough(place, *arguments, tags=("used_tag", "after_tag"), absent=(), **how):
    """Runs the program with --thorough over input.cc, and checks the names of its tags."""
    text = place.tags("--thorough", *arguments, "input.cc", **how)
    require_tags(text, tags, absent)
    return text


def write_input(place, head):
    place.write("input.cc", head + USES + "void after_tag();\n")


@case
def cycles(place):
    place.write("a.h", includes("b.h"))
    place.write("b.h", includes("a.h", "c.h"))
    place.write("c.h", includes("c.h", "a.h", "input.cc") + DEFINES)
    write_input(place, includes("a.h", "input.cc"))
    thorough(place)


@case
def itself_in_many_spellings(place):
    (place.folder / "folder").mkdir()
    spellings = ["input.cc", "./input.cc", ".//input.cc", "folder/../input.cc",
                 f"../{place.folder.name}/input.cc", "no/such/folder/../../../input.cc",
                 str(place.folder / "input.cc"), "../" * 50 + "input.cc"]
    write_input(place, includes(*spellings, *["./" * i + "input.cc" for i in range(2000)]) + DEFINES)
    text = thorough(place)
    require(text.count(b"\nMADE\t") == 1, "more than one tag of a macro")


@case
def links_to_their_own_folder(place):
    # Forty links deep there are 2 to the 40th names of one header.
    os.symlink(".", place.folder / "a")
    os.symlink(".", place.folder / "b")
    place.write("header.h", includes("a/header.h", "b/header.h") + DEFINES)
    write_input(place, includes("header.h"))
    thorough(place, seconds=5)


@case
def what_is_no_file(place):
    (place.folder / "folder.h").mkdir()
    os.mkfifo(place.folder / "fifo.h")
    os.symlink("circle.h", place.folder / "circle.h")
    os.symlink("nowhere.h", place.folder / "dangling.h")
    os.symlink("/dev/zero", place.folder / "zero.h")
    place.write("file.h", "")
    here = os.open(".", os.O_RDONLY)
    with socket.socket(socket.AF_UNIX) as listener:
        short = f"/tmp/vexltags-{os.getpid()}-{id(place)}"
        listener.bind(short)
        os.rename(short, place.folder / "socket.h")
    os.close(here)
    place.write("made.h", DEFINES)
    write_input(place, includes("folder.h", "fifo.h", "circle.h", "dangling.h", "zero.h", "socket.h",
                                "file.h/x.h", "/dev/zero", "/dev/tty", "", ".", "..", "/", "a" * 5000,
                                "a/" * 5000, "\xff\xfe", "made.h"))
    thorough(place)


@case
def what_must_not_be_read(place):
    place.write("secret.h", "#define SECRET(x) int x;\n")
    os.chmod(place.folder / "secret.h", 0)
    (place.folder / "closed").mkdir()
    place.write("closed/secret.h", "#define SECRET(x) int x;\n")
    os.chmod(place.folder / "closed", 0)
    place.write("made.h", DEFINES)
    write_input(place, includes("secret.h", "closed/secret.h", "made.h") + "SECRET(secret_tag)\n")
    os.chmod(place.folder, 0o777)
    user = NOBODY if os.geteuid() == 0 else None
    thorough(place, "--macros=closed", "--macros=secret.h", user=user, absent=("secret_tag",))


@case
def headers_in_a_long_chain(place):
    count = 3000
    for i in range(count):
        place.write(f"h{i}.h", includes(f"h{i + 1}.h"))
    place.write(f"h{count}.h", DEFINES)
    write_input(place, includes("h0.h"))
    thorough(place)


@case
def missing_headers(place):
    write_input(place, "".join(f'#include "missing{i}.h"\n' for i in range(10 * QUICK)) + DEFINES)
    thorough(place)
    if place.options.gib:
        require(place.last.peak < 300, f"{place.last.peak:.0f} MiB")


@case
def many_descriptors(place):
    for i in range(200):
        place.write(f"h{i}.h", f"#define M{i} int m{i};\n")
    write_input(place, includes(*[f"h{i}.h" for i in range(200)]) + DEFINES + "M0 M199\n")
    thorough(place, tags=("used_tag", "after_tag", "m0", "m199"),
             limits=[(resource.RLIMIT_NOFILE, 5)])


@case
def huge_header(place):
    with open(place.folder / "huge.h", "wb") as file:
        file.truncate(3 * 2**30)
    place.write("made.h", DEFINES)
    write_input(place, includes("huge.h", "made.h"))
    thorough(place)


@case
def binary_header(place):
    place.write("random.h", os.urandom(10**6))
    place.write("made.h", b"\0#define MADE(x) int y;\n" + DEFINES.encode())
    write_input(place, includes("random.h", "made.h"))
    thorough(place)


@case
def macros_from_odd_paths(place):
    (place.folder / "folder").mkdir()
    os.symlink(".", place.folder / "folder" / "loop")
    os.mkfifo(place.folder / "folder" / "fifo.h")
    place.write("folder/made.h", DEFINES)
    write_input(place, "")
    thorough(place, "--macros=folder", "--macros=folder/fifo.h", "--macros=missing",
             "--macros=/dev/zero", "--macros=input.cc", "--macros=" + "x" * 5000)


@case
def million_definitions(place):
    place.write("many.h", "".join([f"#define M{i}(x) int x;\n" for i in range(10**6)]))
    write_input(place, includes("many.h") + DEFINES + "M0(m0) M999999(m999999)\n")
    thorough(place, tags=("used_tag", "after_tag", "m0", "m999999"))


@case
def exploding_macros_of_many_headers(place):
    for i in range(1, 64):
        place.write(f"h{i}.h", includes(f"h{i - 1}.h") + f"#define M{i} M{i - 1} M{i - 1}\n")
    place.write("h0.h", "#define M0 int x;\n" + DEFINES)
    write_input(place, includes("h63.h") + USES.replace("used", "first") + "M63\n" * 10)
    # What is left of the budget of the file may be nothing.
    thorough(place, tags=("first_tag", "after_tag"))


@case
def header_that_changes(place):
    # The first pass reads another file than the second.
    place.write("made.h", DEFINES)
    write_input(place, includes("made.h"))
    for size in (0, 1, 5):
        place.write("made.h", DEFINES[:size])
        thorough(place, tags=("after_tag",))


@case
def small_stack(place):
    for kib in (64, 1024, 8192):
        place.write("made.h", "#define A(x) x x\n#define B(x) A(x)\n" + DEFINES)
        # What is left of the budget of the file after the calls may be nothing.
        write_input(place, includes("made.h") + USES + "B(A(" * 500 + "))" * 500 + ";\n")
        thorough(place, limits=[(resource.RLIMIT_STACK, kib * 1024)])


def cases():
    """Every case of this file."""
    return CASES
