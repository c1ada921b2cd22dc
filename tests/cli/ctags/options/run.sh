# SPDX-License-Identifier: MIT
# The forms of options, in any order, and what is reported: unknown options once each, invalid values
# as errors.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
first() { status "$ctags" "$@" | head -n 1; }
first -f- -n tool.py
first -f - -n tool.py
first -nuf- tool.py
first -n -u -f - -- tool.py
first tool.py -o- --excmd=number --sort=0
first --output-format=json --output-format=u-ctags -xnf- --output-format=u-ctags tool.py
first --excmd=combine -f- tool.py
first -N -n -N -f- tool.py
first -e -f- tool.py | od -c | head -n 1
"$ctags" -e -f- tool.py | sed -n 2,3p | tr '\177\001' '|!'
first --fields=+n-s -f- tool.py
first --fields=+{line}-{typeref}{signature} --fields=+z -f- tool.py
first --fields= -f- tool.py
first --kinds-all= --kinds-Python=+m -f- tool.py
first --PYTHON-kinds={member} -f- tool.py
first --python-kinds=-cm --python-types=-f -f- tool.py
first --_xformat='%-8N|%3n|%%|%{nothing}|%q|%{scope}|%p|%k' -x tool.py
first --sort=foldcase -f- tool.py shape.cc
first -I API -DX=1 -BFV -h .h -f- tool.py
echo '> reported' >&2
first --unknown --unknown --unknown=1 -Z -f- tool.py
first --quiet --unknown -f- tool.py
first --fields=+! --extras=+!{odd -f- tool.py
first --languages=cobol,python -f- tool.py
first --format=1 -f- tool.py
first --python-kinds=xyzc --c-kinds=qq --cobol-kinds=p -f- tool.py
echo '> errors' >&2
first --sort=maybe -f- tool.py
first --recurse=maybe -f- tool.py
first --excmd=word -f- tool.py
first --output-format=pdf -f- tool.py
first --tag-relative=perhaps -f- tool.py
first --format=9 -f- tool.py
first --maxdepth=x -R
first --langmap=python -f- tool.py
first --excmd
first -n -f
first -L
first -L missing
first
first --append=no
first ''
