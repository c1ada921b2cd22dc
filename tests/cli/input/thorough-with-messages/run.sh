# SPDX-License-Identifier: MIT
# --dumpErrors changes no tag of --thorough, in any language.
printf 'int a;\n)\nint b;\n' >stray.c
printf 'let a = 1\n) )\nlet b = 2\n' >stray.swift
printf 'def a(x=-1): pass\n)\ndef b(): pass\n' >stray.py
for file in stray.c stray.swift stray.py; do
  "$VEXLTAGS" --sort=no --thorough -f plain "$file"
  "$VEXLTAGS" --sort=no --thorough --dumpErrors -f shown "$file" 2>/dev/null
  cmp plain shown
  grep -v '^!' plain | cut -f 1,3
done
