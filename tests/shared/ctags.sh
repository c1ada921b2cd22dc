# SPDX-License-Identifier: MIT
# The start of the cases of vexltags-ctags: skips them where it is not built, and copies the sample
# project. `status` runs a command and prints its exit status if that is not 0.
[ -x "$VEXLTAGS_CTAGS" ] || { echo "vexltags-ctags is not built"; exit 77; }
cp -R "$VEXLTAGS_SOURCE/tests/shared/project/." .
ctags=$VEXLTAGS_CTAGS
status() {
  "$@" || echo "status $?"
}
