# SPDX-License-Identifier: MIT
# Relative paths start from PWD, also where the process runs elsewhere: from below, from a link, from
# the root. Where PWD is unset or does not resolve they start from the real working directory.
mkdir -p x/y
ln -s x link
here=$PWD
tags() {
  echo "PWD ${PWD-unset}"
  "$VEXLTAGS" --tag-relative --sort=no a.py | grep -v '^!'
}
{
  (PWD=$here/x/y; tags)
  (PWD=$here/link; tags)
  (PWD=/; tags)
  (PWD=x; tags)
  (unset PWD; tags)
  (PWD=/nonexistent; tags)
  (PWD=; tags)
} | sed "s|$here|HERE|"
