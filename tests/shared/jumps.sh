# SPDX-License-Identifier: MIT
# Jumps in Vim or Neovim over the sample project. The case that sources this has `vimrc` and the
# function `ask`, which runs the editor with the given arguments and prints what it wrote to `at`.
shared=$VEXLTAGS_SOURCE/tests/shared
cp -R "$shared/project/." .
where='[expand("%:t") . " " . line(".")]'
jump() {
  while read -r name; do
    printf '%s: ' "$name"
    ask -c "silent! tag $name" -c "call writefile($where, 'at')"
  done
}
sources='shape.h shape.cc view.m body.swift tool.py'
"$VEXLTAGS" --sort=yes --cannonical-paths=no -f tags $sources
jump <"$shared/jump-names"
"$VEXLTAGS" --sort=yes $sources | "$VEXLTAGS_PORTABLE" >filtered
mv filtered tags
jump <"$shared/jump-names" >jumps
"$VEXLTAGS" $sources | "$VEXLTAGS_PORTABLE" >tags
jump <"$shared/jump-names" | cmp - jumps

# A path with a blank: after ~/, and through the filter.
"$VEXLTAGS" --sort=yes -f tags 'a dir/other tool.py'
echo Queue | jump
"$VEXLTAGS" --sort=yes --cannonical-paths=no 'a dir/other tool.py' | "$VEXLTAGS_PORTABLE" >tags
echo Queue | jump

# The mapping for names with labels, a list of places, and what a script gets.
"$VEXLTAGS" $sources | "$VEXLTAGS_PORTABLE" >tags
echo 'stop' >use.swift
ask -c 'edit use.swift' -c 'exe "normal \\]"' -c "call writefile($where, 'at')"
ask -c 'call writefile(split(execute("tselect Area"), "\n"), "at")' | grep -c '[/]shape\.'
ask -c 'call writefile(map(taglist("^move"), "v:val.name . v:val.kind . get(v:val, \"class\", \"\")"), "at")'
