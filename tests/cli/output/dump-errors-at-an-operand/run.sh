# SPDX-License-Identifier: MIT
# Of an assignment without an operand the token after it is reported, not the equals sign.
"$VEXLTAGS" --dumpErrors --sort=no --tag-relative -f - input.swift 2>messages | grep -v '^!'
sed "s|(Start: -*[1-9][0-9]*-Stop: -*[1-9][0-9]*)|(EXTENT)|; s|$HOME|HOME|" messages
