# SPDX-License-Identifier: MIT
# The interactive mode: each answer arrives before the next request, errors are objects, and the
# sandbox reads no file.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
cat >ask.py <<'EOF'
import json, subprocess, sys

def talk(mode, requests, *options):
    with subprocess.Popen([sys.argv[1], mode, *options], stdin=subprocess.PIPE,
                          stdout=subprocess.PIPE) as server:
        print(server.stdout.readline().decode().split('"version"')[0])
        for request, contents in requests:
            server.stdin.write((request if isinstance(request, bytes) else
                                json.dumps(request).encode()) + b"\n" + contents)
            server.stdin.flush()
            for line in server.stdout:
                print(line.decode(), end="")
                if json.loads(line)["_type"] != "tag":
                    break
        server.stdin.close()
        sys.stdout.buffer.write(server.stdout.read())
    print("status", server.returncode)

def tags(name, contents):
    return {"command": "generate-tags", "filename": name, "size": len(contents)}, contents

talk("--_interactive", [
    tags("a.py", b"class A:\n    def f(self): pass\n"),
    tags("b/c.cc", b"#define API(name) int name()\nAPI(made);\nint g() { return 1; }\n"),
    tags("c.cc", b"API(made);\n"),
    tags("d.swift", b"struct P { func move(to x: Int) {} }"),
    tags("e.unknown", b"x"),
    tags("empty.c", b""),
    ({"command": "generate-tags", "filename": "tool.py"}, b""),
    ({"command": "generate-tags", "filename": "missing.py"}, b"\n\n"),
    ({"command": "sing"}, b""),
    (b"[]", b""),
    (b"{", b""),
    ({"command": "generate-tags"}, b""),
    ({"command": "generate-tags", "filename": "a.py", "size": -1}, b""),
    ({"command": "generate-tags", "filename": 7, "size": 1}, b""),
    tags("latin.c", b"int caf\xe9;\n"),
])
talk("--_interactive=sandbox", [
    ({"command": "generate-tags", "filename": "tool.py"}, b""),
    tags("a.py", b"x = 1\ndef f(a): pass\n"),
], "--fields=*", "--kinds-all=*")
# The input ends within the contents.
done = subprocess.run([sys.argv[1], "--_interactive=default"], stdout=subprocess.PIPE,
                      input=b'{"command":"generate-tags","filename":"a.py","size":99}\nclass')
print(done.stdout.decode().splitlines()[1:], done.returncode)
done = subprocess.run([sys.argv[1], "--_interactive=default"], stdout=subprocess.PIPE,
                      input=b"x" * 100000)
print(done.stdout.decode().splitlines()[1:], done.returncode)
EOF
"$PYTHON" ask.py "$ctags"
status "$ctags" --_interactive=loud
