# SPDX-License-Identifier: MIT
# Relative paths do not need the home directory to be written short.
mkdir x
cd x
"$VEXLTAGS" --tag-relative --cannonical-paths=no -f ../tags ../a.py
"$VEXLTAGS" --tag-relative=no --tag-relative=nothing ../b.py
