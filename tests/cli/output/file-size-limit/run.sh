# SPDX-License-Identifier: MIT
# Exceeding a file size limit is reported and leaves no incomplete file.
"$PYTHON" -c 'for i in range(20000): print("def f%d(): pass" % i)' >long.py
status=0
(ulimit -f 8; "$VEXLTAGS" -f tags long.py) || status=$?
test ! -s tags
exit $status
