# SPDX-License-Identifier: MIT
# A full device ends the run with a message and status 255, for a short and for a long text.
test -c /dev/full || { echo "there is no /dev/full"; exit 77; }
"$PYTHON" -c 'for i in range(20000): print("def f%d(): pass" % i)' >long.py
try() {
  status=0
  "$VEXLTAGS" "$@" >/dev/full || status=$?
  echo $status
}
try a.py
try long.py
try -f /dev/full a.py
try -f /dev/full long.py
try --time -f tags a.py
try --help
try --version
