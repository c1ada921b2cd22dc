# SPDX-License-Identifier: MIT
# Files of options: one argument a line, comments, several in order, folders, the users' own ones.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
printf '# all of it\n\n  --sort=no\n--excmd=number\r\n-f\n-\n' >one
printf '%s\n' --fields=k tool.py >two
"$ctags" --options=one --options=two | head -n 2
mkdir folder .ctags.d
echo --excmd=pattern >folder/b.ctags
echo --excmd=number >folder/a.ctags
echo --excmd=combine >folder/c.txt
"$ctags" --options=folder -f- tool.py | head -n 1
echo --excmd=number >.ctags.d/own.ctags
"$ctags" -f- tool.py | head -n 1
"$ctags" --options=NONE -f- tool.py | head -n 1
mkdir -p .config/ctags
echo --sort=no >.config/ctags/x.ctags
"$ctags" -f- tool.py | head -n 1
"$ctags" --options-maybe=missing --options=NONE -f- tool.py | head -n 1
rm -r .ctags.d .config
echo '> errors' >&2
echo --options=itself >itself
status "$ctags" --options=itself -f- tool.py
status "$ctags" --options=missing -f- tool.py
status "$ctags" --options= -f- tool.py
printf -- '-f\n' >half
status "$ctags" --options=half - tool.py
i=0
while [ $i -lt 30 ]; do
  i=$((i + 1))
  echo --options=deep$i >deep$((i - 1))
done
status "$ctags" --options=deep0 -f- tool.py
