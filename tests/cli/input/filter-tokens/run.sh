# SPDX-License-Identifier: MIT
# Filter words do not change which tags are found.
"$VEXLTAGS" --tag-relative a.c >plain
"$VEXLTAGS" --tag-relative -I FOO,,BAR, --filterToken x a.c | cmp plain -
grep -c '^f	a.c	1;"	f' plain
