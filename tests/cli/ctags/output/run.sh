# SPDX-License-Identifier: MIT
# What is refused, what is kept, and what is written at once or not at all.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
echo 'my notes' >notes
status "$ctags" -f notes tool.py
status "$ctags" -a -f notes tool.py
status "$ctags" -e -f notes tool.py
cat notes
status "$ctags" -f missing/tags tool.py
status "$ctags" -f . tool.py
status "$ctags" -f tool.py/tags tool.py
status "$ctags" --append=no -f- missing.py tool.py | cut -f 1 | head -n 1
: >empty
"$ctags" -f empty tool.py
head -n 1 empty
printf 'zeta\told.py\t/^zeta$/;"\tf\n' >plain
"$ctags" --append -f plain tool.py
grep -v '^!' plain | cut -f 1
grep -c '^!_TAG_FILE_SORTED	1' plain
"$ctags" --append=yes --sort=no -f plain tool.py
grep -c '^!_TAG_FILE_SORTED	0' plain
grep -vc '^!' plain
"$ctags" -a -f new tool.py
grep -c '^main' new
"$ctags" -e -f TAGS tool.py
"$ctags" -e -a -f TAGS view.m
grep -c "^[tv].*,[0-9]*$" TAGS
"$ctags" -f- tool.py >/dev/full || echo "status $?"
"$ctags" --version >/dev/full || echo "status $?"
"$PYTHON" -c 'for i in range(20000): print("def f%d(): pass" % i)' >long.py
{ "$ctags" -f- long.py || echo $? >status; } | head -n 1
cat status
# The tags file is a link; standard streams are closed.
ln -s new link
"$ctags" -f link view.m
grep -c '^more' new
status "$ctags" -f closed tool.py <&- >&- 2>&-
grep -c '^main' closed
