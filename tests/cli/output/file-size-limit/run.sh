# SPDX-License-Identifier: MIT
# A size limit ends in a message and leaves no half-written file.
"$PYTHON" -c 'for i in range(20000): print("def f%d(): pass" % i)' >long.py
status=0
(ulimit -f 8; "$VEXLTAGS" -f tags long.py) || status=$?
test ! -s tags
exit $status
