# SPDX-License-Identifier: MIT
# Which kinds are written by default and on request, and how they are called in each language.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
printf 'class C {}; namespace n {}\nint f() { return 1; }\n' >mixed.c
kinds() { "$ctags" -f- --fields=K "$@" | cut -f 4 | sort | uniq -c | sed 's/^ *//' | tr '\n' ' '; echo; }
for file in shape.h shape.cc view.m tool.py body.swift mixed.c; do
  echo "$file"
  kinds $file
  kinds --kinds-all='*' $file
done
kinds --c++-kinds=+px shape.h
kinds --c++-kinds=p-p+f shape.h
kinds --extras=-F shape.cc
kinds --extras= shape.cc
kinds --extras=-{anonymous} shape.cc
"$ctags" -f- --extras=+p --kinds-all= --python-kinds=f tool.py | grep '^!_TAG_KIND'
"$ctags" -f none --extras= tool.py
grep -c '^!' none || true
