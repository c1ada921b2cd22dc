# SPDX-License-Identifier: MIT
# What Tab offers in fish: options, values after `=`, files.
command -v fish >/dev/null || { echo "fish is not installed"; exit 77; }
touch one.c two.py
fish --no-config -c '
source "$VEXLTAGS_SOURCE/completions/vexltags.fish"
for line in "vexltags --so" "vexltags --sort=" "vexltags --append=" "vexltags --rep" "vexltags -f t" "vexltags --append o" "vexltags t" "vexltags-portable --i"
  echo "$line ->" (complete -C $line | cut -f 1 | sort)
end'
