# SPDX-License-Identifier: MIT
# Each bad argument ends the run at once with its message; nothing is indexed or written.
try() {
  status=0
  "$VEXLTAGS" -f tags a.py "$@" || status=$?
  echo "$status"
}
exec 2>&1
try --reportIfLonger
try --reportIfLonger=
try --abortIfLonger
try --abortIfLonger=1=
try --sort
try --sort=maybe
try -I
try --filterToken=FOO
try -L
try -L --time
try -f
try -f -x
try -f other
try -f -
try -L list b.py
try --sort --help
test ! -e tags
test ! -e other
