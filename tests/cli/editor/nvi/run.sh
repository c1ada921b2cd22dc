# SPDX-License-Identifier: MIT
# nvi jumps in a file sorted by bytes, plain and through the filter.
command -v nex >/dev/null || { echo "nvi is not installed"; exit 77; }
cp -R "$VEXLTAGS_SOURCE/tests/shared/project/." .
jump() {
  for name; do
    printf 'tag %s\nf\nq!\n' "$name" | EXINIT= TERM=dumb nex -s 2>messages | sed -n "s|.*/\(.*: unmodified\)|\1|p"
  done
}
sources='shape.h shape.cc view.m body.swift tool.py'
"$VEXLTAGS" --sort=yes --cannonical-paths=no -f tags $sources
jump Area kSides color_ setCount: 'move(to:)' push
"$VEXLTAGS" --sort=yes $sources | "$VEXLTAGS_PORTABLE" >tags
jump Area color_ push
