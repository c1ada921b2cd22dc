# SPDX-License-Identifier: MIT
# The filter's messages for unusable arguments, for no input and for a full disk.
try() {
  echo "> $*" >&2
  "$VEXLTAGS_PORTABLE" "$@" </dev/null || echo "status $?" >&2
}
try --odd
try tags tags
try -i
try missing
try -
try run.sh
echo 'f	a.py	1;"	f' >-tags
try -- -tags
try -tags
echo '> full' >&2
"$VEXLTAGS_PORTABLE" -- -tags >/dev/full || echo "status $?" >&2
