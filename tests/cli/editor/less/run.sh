# SPDX-License-Identifier: MIT
# less -t, as in editors/less.md: by name and by t, :t and -T, plain and through the filter.
command -v less >/dev/null || { echo "less is not installed"; exit 77; }
cp -R "$VEXLTAGS_SOURCE/tests/shared/project/." .
export TERM=dumb LESS= LESSHISTFILE=-
# Steps for the terminal, then -- and options for less, whose prompt shows the file and the line at the top.
try() {
  for step; do
    [ "$step" = -- ] && break
    printf '%s ' "$step"
  done
  "$PYTHON" "$VEXLTAGS_SOURCE/tests/runners/terminal.py" "$@" -d '-PsAT %F %lt<' >report </dev/null &&
    echo seen || cat report
}
look() {
  name=$1
  at=$2
  shift 2
  try wait="AT $at<" -- less -t "$name" "$@"
}
sources='shape.h shape.cc view.m body.swift tool.py'
jumps() {
  look Area 'shape.cc 6'
  look color_ 'shape.h 20'
  look setCount: 'view.m 13'
  look 'move(to:)' 'body.swift 2'
  look push 'tool.py 2'
}
"$VEXLTAGS" --cannonical-paths=no -f tags $sources
jumps
try wait='AT shape.cc 6<' type=t wait='AT shape.h 16<' type=T wait='AT shape.cc 6<' -- less -t Area
try wait='AT shape.cc 6<' type=':tpush\r' wait='AT tool.py 2<' -- less -t Area
mv tags other
look push 'tool.py 2' -Tother
"$VEXLTAGS" $sources | "$VEXLTAGS_PORTABLE" >tags
jumps

# What the page warns of: a home directory that is not expanded, and a path with a blank.
"$VEXLTAGS" -f tags tool.py
try wait='~/tool.py: No such file' -- less -t push
"$VEXLTAGS" 'a dir/other tool.py' | "$VEXLTAGS_PORTABLE" >tags
try wait='/a: No such file' -- less -t Queue
