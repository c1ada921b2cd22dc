# SPDX-License-Identifier: MIT
# What no option matches is an input path.
"$VEXLTAGS" --foo --excmd=pattern --canonical-paths -x -- a.py -f tags
