# SPDX-License-Identifier: MIT
# Through the filter: a header of three fields, order for other readers, plain paths, keyed scopes.
"$VEXLTAGS" --tag-relative 'a body.swift' names.h | "$VEXLTAGS_PORTABLE" >tags
"$VEXLTAGS_PORTABLE" tags | cmp - tags
