# SPDX-License-Identifier: MIT
# readtags refuses the plain file; through the filter it answers each query, in every order.
command -v readtags >/dev/null || { echo "readtags is not installed"; exit 77; }
"$VEXLTAGS" -f tags names.h
readtags -e -t tags Aa 2>&1 | sed 's/: tags$//' || true
for order in yes foldcase no; do
  echo "> $order"
  "$VEXLTAGS" --tag-relative --sort=$order names.h body.swift | "$VEXLTAGS_PORTABLE" >tags
  for name in A_b Aa ab _x; do readtags -t tags "$name"; done
  readtags -t tags -i "MASS_NOW"
  readtags -t tags -e -p mo
  readtags -t tags -e -Q '(eq? $kind "s")' -l
  readtags -t tags -l | wc -l
  readtags -t tags -e -Q '(eq? ($ "class") "Body")' -S '(<> $line &line)' -l
  readtags -t tags -e -Q '(eq? ($ "extension") "Body")' -l
  readtags -t tags -Q '(eq? $input "names.h")' -S '(<> $line &line)' -l
  readtags -t tags -en ab
  readtags -t tags -D
done
echo '> odd ones'
readtags -t tags -Q '(eq? $scope-name "Body")' -l
printf '%s\ta.swift\t%s;"\tf\n' nowhere -1 '-(a:,b:)' 3 | "$VEXLTAGS_PORTABLE" >tags
readtags -t tags -l
readtags -t tags - '-(a:,b:)'
