# SPDX-License-Identifier: MIT
# A reader that goes away ends in a message and status 255, not in a signal.
"$PYTHON" -c 'for i in range(20000): print("def f%d(): pass" % i)' >long.py
{
  status=0
  "$VEXLTAGS" long.py || status=$?
  echo $status >status
} | head -n 1
cat status
