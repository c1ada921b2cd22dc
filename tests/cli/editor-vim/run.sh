# SPDX-License-Identifier: MIT
# Jumps with the set-up of editors/vim.md: a name of each kind in each language, plain and filtered.
command -v vim >/dev/null || { echo "vim is not installed"; exit 77; }
sed -n '/^```vim$/,/^```$/p' "$VEXLTAGS_SOURCE/editors/vim.md" | sed '/^```/d' >vimrc
where='[expand("%:t") . " " . line(".")]'
ask() {
  rm -f at
  vim -N -i NONE -n -es -u vimrc "$@" -c 'qa!' >messages 2>&1 </dev/null || true
  cat at
}
jump() {
  while read -r name; do
    printf '%s: ' "$name"
    ask -c "silent! tag $name" -c "call writefile($where, 'at')"
  done
}
sources='shape.h shape.cc view.m body.swift tool.py'
"$VEXLTAGS" --sort=yes --cannonical-paths=no -f tags $sources
jump <names
"$VEXLTAGS" --sort=yes $sources | "$VEXLTAGS_PORTABLE" >filtered
mv filtered tags
jump <names >jumps
"$VEXLTAGS" $sources | "$VEXLTAGS_PORTABLE" >tags
jump <names | cmp - jumps

# A path with a blank: behind ~/, and through the filter.
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
