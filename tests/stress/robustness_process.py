# SPDX-License-Identifier: MIT
"""Cases of tests/stress/robustness.py about the process: streams, lists, descriptors, memory, environment."""
import os
import resource
import socket
import subprocess
import threading

from robustness_inputs import GOOD, NOBODY, QUICK, Case
from robustness_place import Skip, require, require_tags

OLD = b"old_tag\tx.c\t1;\"\tf\n"
NOTHING_TO_READ = b"reading from stdin not yet implemented\n"
CASES = []


def case(function):
    """Makes a case of a function that takes a `Place`; its name is what is odd."""
    name = function.__name__.split("_", 1)
    CASES.append(Case(name[0] + "/" + name[1].replace("_", "-"), "function",
                      make=function))
    return function


def good(place, name="good"):
    return place.write(name + ".c", f"void {name}_tag(void);\n")


def many(place, count=20000):
    return place.write("many.py", "".join(f"def f{i}(): pass\n" for i in range(count)))


def require_end(done, status, stderr=b""):
    require(done.status == status, f"status {done.status}")
    require(done.err == stderr, f"messages {done.err[-300:]!r}, not {stderr!r}")


# --- Standard streams -------------------------------------------------------------------------------


@case
def streams_closed_stdin(place):
    require_tags(place.tags(good(place), closed=(0,)), ["good_tag"])
    require_end(place.run("-f", "tags", "-L", "-", closed=(0,)), 255, NOTHING_TO_READ)


@case
def streams_closed_stdout(place):
    require_tags(place.tags(good(place), closed=(1,)), ["good_tag"])
    require_end(place.run(good(place), closed=(1,)), 255, b"error writing <stdout>\n")
    require_end(place.run("--help", closed=(1,)), 255, b"error writing <stdout>\n")


@case
def streams_closed_stderr(place):
    # The message must not be written to the file that gets the free descriptor.
    text = place.tags("missing.c", good(place), closed=(2,))
    require(b"missing.c" not in text, "the message is in the tags file")
    require_tags(text, ["good_tag"])


@case
def streams_all_closed(place):
    text = place.tags("missing.c", good(place), closed=(0, 1, 2))
    require(b"failed" not in text, "the message is in the tags file")
    require_tags(text, ["good_tag"])


@case
def streams_full_stderr(place):
    if not os.path.exists("/dev/full"):
        raise Skip("there is no /dev/full")
    with open("/dev/full", "wb") as full:
        done = place.run("missing.c", good(place), stderr=full)
    require_end(done, 0)
    require_tags(done.out, ["good_tag"])


@case
def streams_folder_as_stdin(place):
    folder = os.open(place.folder, os.O_RDONLY)
    require_end(place.run("-f", "tags", "-L", "-", stdin=folder), 255, NOTHING_TO_READ)
    os.close(folder)


@case
def streams_pipe_that_closes(place):
    many(place, 200000)
    for pipes_break in (True, False):
        reader, writer = os.pipe()

        def read_some(reader=reader):
            os.read(reader, 1000)
            os.close(reader)
        thread = threading.Thread(target=read_some)
        thread.start()
        done = place.run("many.py", stdout=writer, pipes_break=pipes_break)
        os.close(writer)
        thread.join()
        require_end(done, 255, b"error writing <stdout>\n")


# --- Lists ------------------------------------------------------------------------------------------


def require_listed(place, text, count, stderr=b""):
    """Whether a list results in the good file's tag `count` times."""
    good(place)
    place.write("list", text)
    done = place.run("--sort=no", "-f", "tags", "-L", "list")
    require_end(done, 0 if count else 255, stderr)
    if count:
        found = (place.folder / "tags").read_bytes().count(b"\ngood_tag\t")
        require(found == count, f"{found} tags, not {count}")


@case
def lists_without_final_newline(place):
    require_listed(place, b"good.c\ngood.c", 2)


@case
def lists_of_nul_without_final_nul(place):
    require_listed(place, b"good.c\0\0good.c", 2)


@case
def lists_with_carriage_returns(place):
    message = b"failed opening good.c\r good.c\r\n"
    require_listed(place, b"good.c\r\ngood.c\r\n", 0, 2 * message)
    require_listed(place, b"good.c\r\ngood.c\n", 1, message)


@case
def lists_with_blank_lines(place):
    require_listed(place, b"\n\n\ngood.c\n\n\n\n", 1)
    require_listed(place, b" \n", 0, b"failed opening    \n")


@case
def lists_of_themselves(place):
    text = b"list\ngood.c\n"
    require_listed(place, text, 1)


@case
def lists_of_folders(place):
    where = os.fsencode(os.path.realpath(place.folder))
    require_listed(place, b".\ngood.c\n/\n", 1,
                   b"failed reading . " + where + b"\nfailed reading / /\n")


@case
def lists_of_100000_missing(place):
    names = [b"no/such/%d.c" % i for i in range(100000)]
    require_listed(place, b"\n".join(names) + b"\ngood.c\n", 1,
                   b"".join(b"failed opening %s %s\n" % (name, name) for name in names))


@case
def lists_that_are_none(place):
    good(place)
    (place.folder / "folder").mkdir()
    with socket.socket(socket.AF_UNIX) as listener:
        short = f"/tmp/vexltags-{os.getpid()}-{id(place)}"
        listener.bind(short)
        os.rename(short, place.folder / "socket")
    os.symlink("loop", place.folder / "loop")
    for path in ("folder", "socket", "loop", "missing", "good.c/x", "/dev/null"):
        require_end(place.run("-f", "tags", "-L", path), 255, NOTHING_TO_READ)
        require(not (place.folder / "tags").exists(), f"a tags file by the list {path}")


@case
def lists_from_a_fifo_with_a_late_writer(place):
    good(place)
    os.mkfifo(place.folder / "fifo")
    writer = subprocess.Popen(["sh", "-c", "sleep 0.3; echo good.c >fifo"], cwd=place.folder)
    require_tags(place.tags("-L", "fifo"), ["good_tag"])
    writer.wait(20)


# --- Files that are not what their size says --------------------------------------------------------


@case
def files_each_single_byte(place):
    names = []
    for suffix in GOOD:
        for byte in range(256):
            names.append(place.write(f"{byte}{suffix}", bytes([byte])))
    require_tags(place.tags(*names, good(place)), ["good_tag"])


@case
def files_each_byte_on_a_line(place):
    for suffix, make in GOOD.items():
        names = []
        for byte in range(256):
            text = make("before").encode() + bytes([byte]) + b"\n" + make("after").encode()
            names.append(place.write(f"line{byte}{suffix}", text))
        text = place.tags(*names)
        count = text.count(b"\nbefore")
        require(count == 256, f"{count} times the tag before the byte in {suffix}")


@case
def files_of_the_kernel(place):
    # Their size is 0, and some of them cannot be read.
    if not os.path.exists("/proc/self/status"):
        raise Skip("there is no /proc")
    for path in ("/proc/self/status", "/proc/cpuinfo", "/proc/self/maps", "/proc/self/mem",
                 "/proc/self/pagemap", "/proc/kmsg", "/proc/self/environ", "/proc/self/clear_refs",
                 "/proc/self/fd/0", "/proc/self/task", "/dev/stdin", "/dev/fd/99"):
        text = place.tags(path, good(place), stderr=None)
        require_tags(text, ["good_tag"])
        lines = place.last.err.splitlines()
        require(len(lines) <= 1 and all(line.startswith(b"failed ") for line in lines),
                f"{path}: {lines}")


@case
def files_endless_devices(place):
    for path in ("/dev/zero", "/dev/random", "/dev/urandom", "/dev/full"):
        if os.path.exists(path):
            text = place.tags(path, good(place),
                              stderr=f"failed reading {path} {path}\n".encode())
            require_tags(text, ["good_tag"])


@case
def files_fifo_with_a_writer(place):
    # A FIFO is refused, with and without a writer.
    os.mkfifo(place.folder / "fifo.c")
    end = os.open(place.folder / "fifo.c", os.O_RDWR)
    os.write(end, b"void secret(void);\n")
    text = place.tags("fifo.c", good(place), stderr=None)
    require_tags(text, ["good_tag"], ["secret"])
    require(place.last.err.startswith(b"failed reading fifo.c "), f"{place.last.err!r}")
    os.close(end)


@case
def files_many_links(place):
    good(place)
    os.symlink("good.c", place.folder / "0.c")
    for i in range(1, 60):
        os.symlink(f"{i - 1}.c", place.folder / f"{i}.c")
    require_tags(place.tags("30.c"), ["good_tag"])
    # More links than a path may have.
    require_tags(place.tags("59.c", "good.c", stderr=b"failed opening 59.c 59.c\n"), ["good_tag"])


@case
def files_deep_folders(place):
    # A path longer than the system accepts.
    here = os.open(place.folder, os.O_RDONLY)
    for _ in range(30):
        os.mkdir("d" * 200, dir_fd=here)
        below = os.open("d" * 200, os.O_RDONLY, dir_fd=here)
        os.close(here)
        here = below
    with open(os.open("deep.c", os.O_WRONLY | os.O_CREAT, dir_fd=here), "w",
              encoding="latin-1") as file:
        file.write("void deep_tag(void);\n")
    os.close(here)
    path = ("d" * 200 + "/") * 30 + "deep.c"
    message = f"failed opening {path} {path}\n".encode()
    require_tags(place.tags(path, good(place), stderr=message), ["good_tag"])
    subprocess.run(["rm", "-rf", "d" * 200], cwd=place.folder, check=False)


def huge_sparse_file(place):
    with open(place.folder / "sparse.c", "wb") as file:
        file.truncate(3 * 2**30)
    require_tags(place.tags("sparse.c", good(place), seconds=90), ["good_tag"])


CASES.append(Case("size/sparse-file-of-3-gib", "function", make=huge_sparse_file, large=True))


# --- Output -----------------------------------------------------------------------------------------


def replaced(place, *arguments):
    """The text of an input that is also the output."""
    good(place)
    require_end(place.run(*arguments, "-f", "good.c", "good.c"), 0)
    return (place.folder / "good.c").read_bytes()


@case
def output_is_an_input(place):
    require_tags(replaced(place), ["good_tag"])
    text = replaced(place, "--append")
    require_tags(text, ["good_tag"])
    require(b"\nvoid good_tag(void);\n" in text, "the old line is gone")


@case
def output_appended_to_bytes(place):
    place.write("tags", bytes(range(256)) * 1000)
    require_end(place.run("--append", "-f", "tags", good(place)), 0)
    require_tags((place.folder / "tags").read_bytes(), ["good_tag"])


@case
def output_appended_without_final_newline(place):
    place.write("tags", OLD.rstrip(b"\n"))
    require_end(place.run("--append", "-f", "tags", good(place)), 0)
    text = (place.folder / "tags").read_bytes()
    require_tags(text, ["good_tag", "old_tag"])


@case
def output_appended_to_a_folder(place):
    (place.folder / "tags").mkdir()
    for sort in ("yes", "no", "foldcase"):
        require_end(place.run("--append", "--sort=" + sort, "-f", "tags", good(place)), 255,
                    b"error opening tags\n")


@case
def output_appended_to_a_long_line(place):
    place.write("tags", b"a" * (20 * 2**20))
    require_end(place.run("--append", "-f", "tags", good(place)), 0)
    require_tags((place.folder / "tags").read_bytes(), ["good_tag"])


@case
def output_to_a_device(place):
    require_end(place.run("-f", "/dev/null", good(place)), 0)


@case
def output_to_a_fifo(place):
    os.mkfifo(place.folder / "fifo")
    reader = subprocess.Popen(["cat", "fifo"], cwd=place.folder, stdout=subprocess.PIPE)
    require_end(place.run("-f", "fifo", good(place)), 0)
    require_tags(reader.communicate(timeout=20)[0], ["good_tag"])


@case
def output_of_no_size_at_all(place):
    done = place.run("-f", "tags", good(place), limits=[(resource.RLIMIT_FSIZE, 0)])
    require(done.status == 255, f"status {done.status}")
    path = place.folder / "tags"
    require(not path.exists() or path.stat().st_size == 0, "a part of the tags is left")


# --- Descriptors, processes, stacks, time -----------------------------------------------------------


@case
def process_few_descriptors(place):
    for count in (4, 5, 8):
        text = place.tags(*[good(place)] * 50, limits=[(resource.RLIMIT_NOFILE, count)])
        require(text.count(b"\ngood_tag\t") == 50, "not every file was read")


@case
def process_no_further_thread(place):
    if os.geteuid() != 0:
        raise Skip("needs root, to become someone whose processes are counted")
    place.write("deep.c", "int a = " + "(" * QUICK)
    done = place.run("deep.c", good(place), user=NOBODY, limits=[(resource.RLIMIT_NPROC, 0)])
    require_end(done, 0)
    require_tags(done.out, ["good_tag"])


@case
def process_small_stack(place):
    place.write("deep.c", "int a = " + "(" * QUICK)
    for kib in (64, 128, 1024):
        text = place.tags("deep.c", good(place), limits=[(resource.RLIMIT_STACK, kib * 1024)])
        require_tags(text, ["good_tag"])


@case
def process_deleted_folder(place):
    folder = place.folder / "gone"
    folder.mkdir()
    path = place.path(good(place))
    script = 'cd gone && rmdir ../gone && exec "$0" --sort=no "$@"'
    for arguments in (["-f", place.path("tags")], ["--tag-relative", "-f", place.path("tags")]):
        folder.mkdir(exist_ok=True)
        done = subprocess.run(["sh", "-c", script, place.options.program, *arguments, path,
                               "good.c"], cwd=place.folder, stderr=subprocess.PIPE, timeout=60)
        require(done.returncode == 0, f"status {done.returncode}: {done.stderr!r}")
        require(done.stderr.endswith(b"failed opening good.c good.c\n"), f"{done.stderr!r}")
        require_tags((place.folder / "tags").read_bytes(), ["good_tag"])


# --- Memory -----------------------------------------------------------------------------------------


@case
def process_out_of_memory(place):
    if not place.options.gib:
        raise Skip("no limits on address space in this run")
    texts = {".c": "int f%d(int a) { return a; }\n", ".swift": "func f%d(a: Int) { b() }\n",
             ".py": "def f%d(a): return a\n"}
    for suffix, row in texts.items():
        big = place.write("big" + suffix, "".join([row % i for i in range(100000)]))
        ends = set()
        mib = 16
        while mib < 1024:
            done = place.run("-f", "tags", good(place), big, good(place), gib=mib / 1024)
            ends.add(done.status)
            tags = place.folder / "tags"
            if done.status == 0:
                require(tags.read_bytes().count(b"\ngood_tag\t") == 2, "tags are missing")
                tags.unlink()
            elif done.status == 127:
                require(b"shared" in done.err, f"{done.err!r}")  # The program did not even start.
            else:
                require_end(done, 255, b"out of memory\n")
                require(not tags.exists(), "a tags file after a failure")
            mib *= 1.3
        require({0, 255} <= ends, f"only {ends}")


# --- Environment and arguments ----------------------------------------------------------------------


@case
def process_odd_environments(place):
    for environment in ({}, {"HOME": ""}, {"HOME": "/"}, {"HOME": "relative"}, {"PWD": "/nowhere"},
                        {"HOME": "/" + "h" * 100000, "PWD": "/" + "p" * 100000},
                        {"HOME": "\n", "PWD": "\n"}, {"LC_ALL": "tr_TR.UTF-8", "TZ": "nowhere"}):
        for arguments in ((), ("--tag-relative",), ("--cannonical-paths=no", "--tag-relative")):
            text = place.tags(*arguments, good(place), stderr=None, environment=environment)
            require_tags(text, ["good_tag"])


@case
def process_many_arguments(place):
    good(place)
    text = place.tags(*["good.c"] * 50000, seconds=60)
    require(text.count(b"\ngood_tag\t") == 50000, "not every argument was read")


@case
def process_long_arguments(place):
    long = "x" * 100000
    message = f"failed opening {long} {long}\n".encode()
    require_tags(place.tags(long, good(place), stderr=message), ["good_tag"])
    require_tags(place.tags("-I", long, good(place)), ["good_tag"])
    require_tags(place.tags("-I", "a," * 50000, good(place)), ["good_tag"])
    require_end(place.run("-f", long, good(place)), 255, f"error opening {long}\n".encode())


@case
def process_empty_arguments(place):
    require_tags(place.tags("", good(place), stderr=NOTHING_TO_READ), ["good_tag"])
    require_end(place.run("", ""), 255, 2 * NOTHING_TO_READ)


# --- Time limits ------------------------------------------------------------------------------------


@case
def limits_one_message_for_each_file(place):
    rows = "".join([f"int f{i}(int a, long b);\n" for i in range(30000)])
    names = [place.write(f"long{i}{suffix}", "void before(void);\n" + rows)
             for i, suffix in enumerate((".c", ".cc", ".mm", ".h", ".m"))]
    for option, end in (("--abortIfLonger=0.001", b" seconds -- skipping"),
                        ("--reportIfLonger=0.001", None)):
        text = place.tags(option, *names, good(place), stderr=None, seconds=60)
        require_tags(text, ["good_tag"])
        for name in names:
            path = place.path(name).encode()
            lines = [line for line in place.last.err.splitlines() if path in line]
            require(len(lines) == 1, f"{len(lines)} messages about {name}")


def cases():
    """Every case of this file."""
    return CASES
