# SPDX-License-Identifier: MIT
# A reader that closes the pipe ends the run with a message and status 255, not with a signal.
"$PYTHON" -c 'for i in range(20000): print("def f%d(): pass" % i)' >long.py
{
  status=0
  "$VEXLTAGS" long.py || status=$?
  echo $status >status
} | head -n 1
cat status
