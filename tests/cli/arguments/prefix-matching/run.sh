# SPDX-License-Identifier: MIT
# An option matches by its beginning; its value is the whole next argument.
"$VEXLTAGS" --sorted=no -foo out1 b.py a.py
"$VEXLTAGS" --sort=no=yes --tag-relatively -Lfoo list -fx out2
"$VEXLTAGS" --sort=yes=no --filterToken=x y b.py a.py
cat out1 out2
