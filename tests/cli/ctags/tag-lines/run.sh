# SPDX-License-Identifier: MIT
# Names and paths with characters that a tags file cannot have, and lines that are hard to search for.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
tab=$(printf '\t')
mkdir "odd${tab}dir"
printf 'def f(): pass\n' >"odd${tab}dir/a\\b.py"
printf 'struct S { static func ! (s: S) -> S { s } }\n' >not.swift
printf 'int a; // c:\\ $x/y$\nint caf\351 = 1; int\tafter;\nint crlf;\r\n' >hard.c
printf 'int no_newline;' >>hard.c
"$ctags" -f- -u "odd${tab}dir"/*.py not.swift hard.c
"$ctags" -f- -u --output-format=e-ctags "odd${tab}dir"/*.py not.swift
"$ctags" -f- -u --output-format=json hard.c
