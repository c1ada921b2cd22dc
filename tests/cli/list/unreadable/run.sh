# SPDX-License-Identifier: MIT
# A list that is missing, empty or a directory gives nothing to index and is not reported itself.
: >empty
mkdir folder
for list in missing empty folder; do
  status=0
  "$VEXLTAGS" -f tags -L $list || status=$?
  echo $status
done
test ! -e tags
