# SPDX-License-Identifier: MIT
# The filter's own usage text and version.
"$VEXLTAGS_PORTABLE" --help
"$VEXLTAGS_PORTABLE" -v
