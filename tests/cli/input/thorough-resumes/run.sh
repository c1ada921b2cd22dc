# SPDX-License-Identifier: MIT
# A stray token ends the tags of a file, but not with --thorough.
printf 'int before;\n)\nint after;\n' >stray.c
"$VEXLTAGS" --sort=no -f exact stray.c
"$VEXLTAGS" --sort=no --thorough stray.c | grep -v '^!' | cut -f 1,3
echo exact:
grep -v '^!' exact | cut -f 1,3
