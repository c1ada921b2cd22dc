# SPDX-License-Identifier: MIT
# The filter reports a full device, a closed pipe and a closed standard output, whether it buffers lines or not.
test -c /dev/full || { echo "there is no /dev/full"; exit 77; }
"$PYTHON" -c 'for i in range(20000): print("def f%d(): pass" % i)' >long.py
for order in yes no; do
  "$VEXLTAGS" --sort=$order --tag-relative -f tags long.py
  "$VEXLTAGS_PORTABLE" tags >/dev/full || echo "full: $?"
  { "$VEXLTAGS_PORTABLE" tags || echo "closed pipe: $?" >status; } | head -n 1 >first
  cat status
  "$VEXLTAGS_PORTABLE" tags >&- || echo "closed: $?"
  "$VEXLTAGS_PORTABLE" <&- || echo "no input: $?"
done
