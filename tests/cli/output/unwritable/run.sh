# SPDX-License-Identifier: MIT
# An output that cannot be opened is reported after all files were indexed.
mkdir folder
for output in folder a.py/tags missing/; do
  status=0
  "$VEXLTAGS" --debugDumpFilenames -f $output a.py || status=$?
  echo $status
done
