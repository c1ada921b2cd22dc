# SPDX-License-Identifier: MIT
# Jumps in Vim and Neovim with the tags file of -R, by each form of address, after a line was added
# above; readtags finds the same names.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
command -v vim >/dev/null || { echo "vim is not installed"; exit 77; }
command -v nvim >/dev/null || { echo "nvim is not installed"; exit 77; }
command -v readtags >/dev/null || { echo "readtags is not installed"; exit 77; }
names='Area kSides color_ gCount Box geo setCount: viewWithWidth:height: Extra move stop State push main Queue'
jumps() {
  for name in $names; do
    rm -f at
    "$@" -i NONE -n -es -u NONE -c "silent! tag $name" \
      -c 'call writefile([expand("%:t") . " " . line(".")], "at")' -c 'qa!' >messages 2>&1 </dev/null || true
    echo "$name: $(cat at)"
  done
}
"$ctags" -R
jumps vim -N | tee pattern
jumps nvim | cmp - pattern
# Tags of one name are sorted by their addresses, so the first of several depends on these.
names='Area kSides color_ gCount Box geo stop State push main Queue'
jumps vim -N >pattern
"$ctags" -R --excmd=number
jumps vim -N | cmp - pattern
"$ctags" -R --excmd=combine --sort=foldcase
jumps vim -N | cmp - pattern
jumps nvim | cmp - pattern
for name in $names; do readtags -t tags "$name" | cut -f 1 | sort -u; done | tr '\n' ' '
echo
for name in $names; do readtags -i -t tags "$name" | wc -l; done | tr -d ' ' | tr '\n' ' '
echo
"$ctags" -R
for file in shape.h shape.cc view.m body.swift tool.py; do
  { echo; cat $file; } >new
  mv new $file
done
jumps vim -N | head -n 3
fields='v:val.filename . v:val.kind . get(v:val, "class", "")'
vim -N -i NONE -n -es -u NONE -c "call writefile(map(taglist('^Area\$'), '$fields'), 'at')" -c 'qa!' \
  </dev/null
cat at
