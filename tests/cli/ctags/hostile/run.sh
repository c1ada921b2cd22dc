# SPDX-License-Identifier: MIT
# Arguments that make no sense: very long, empty, with control characters, and files of options and
# lists that are no text. Each ends in a message and a status, never in a signal.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
long=$("$PYTHON" -c 'print("x" * 100000)')
short() { "$@" 2>&1 | sed 's/xxxx*/x/g; s/   */ /g'; }
short status "$ctags" -f- "$long.c"
short status "$ctags" -f "$long" tool.py
short status "$ctags" "--$long" -f- tool.py | tail -n 1
short status "$ctags" "--sort=$long" tool.py
short status "$ctags" "--fields=x$long" -f- tool.py | tail -n 1
short status "$ctags" "--kinds-all={$long" "--langmap=c:.$long" "--exclude=$long" -f- tool.py | wc -l
short status "$ctags" -L "$long"
short status "$ctags" "--options=$long"
short status "$ctags" "--language-force=$long" tool.py
short status "$ctags" "--_xformat=%99999$long" -x tool.py | head -n 1
short status "$ctags" "$(printf 'a\nb\t\033[1m.c')" -f-
short status "$ctags" --=x --= --- -- -f- | head -n 4
short status "$ctags" '' '' -f- ''
short status "$ctags" --fields='{' --extras='{}' --kinds-all='{' --c-kinds='+-+' -f- tool.py | head -n 3
printf '\000\001\n--sort=no\000\n\377\n' >binary
short status "$ctags" --options=binary -f- | tail -n 2
printf 'a\000b.c\n\377.c\n%s\n' "$long" >list
short status "$ctags" -L list -f- | tr '\377' '?'
short status "$ctags" -L . -f-
short status "$ctags" --options=/dev/null -f- tool.py | tail -n 1
short status "$ctags" -f /dev/null tool.py
short status "$ctags" -a -f /dev/null tool.py
short status "$ctags" -L /dev/null -f- 
printf 'struct %s { int %s; };\nint f(%s);\n' "$long" "$long" "$long" >long.c
"$ctags" -f- --fields=+S --kinds-all='*' long.c | cut -c 1-5 | uniq
"$ctags" -f- --output-format=json long.c | wc -l
"$PYTHON" -c 'print("namespace n { struct S<" * 3000); print("int f" + "(" * 50000); print("-(void)" * 20000)' >deep.mm
"$ctags" -f- --fields=+S deep.mm >deep.tags
