#!/bin/sh
# Gives every tracked source file its SPDX licence line: "// SPDX-License-Identifier: ..." in
# C, C++ and JavaScript, "# SPDX-License-Identifier: ..." in scripts and CMake files, put
# first, or after the shebang where there is one. A file that has the line is left alone, so
# running it again changes nothing. With --check it changes nothing and lists the files that
# lack the line (exit 1 when there is any).
#   Usage: tools/spdx-headers.sh [--check]
set -eu
cd "$(dirname "$0")/.."
licence="SPDX-License-Identifier: GPL-3.0-or-later"
check=false
[ "${1:-}" = --check ] && check=true

# The comment that starts a line in FILE, or nothing for a file that is not source.
comment_of() {
  case "${1##*/}" in
    *.cpp | *.h | *.c | *.js) echo "//" ;;
    *.py | *.sh | *.cmake | CMakeLists.txt) echo "#" ;;
    *.*) ;;
    *) head -c 2 "$1" | grep -q '^#!' && echo "#" ;;
  esac
}

missing=0
for file in $(git ls-files); do
  [ -f "$file" ] || continue
  comment=$(comment_of "$file") || true
  [ -n "$comment" ] || continue
  head -n 3 "$file" | grep -q "SPDX-License-Identifier:" && continue
  missing=$((missing + 1))
  if $check; then
    echo "no SPDX line: $file"
  elif head -c 2 "$file" | grep -q '^#!'; then
    sed -i "1a\\$comment $licence" "$file"
  else
    sed -i "1i\\$comment $licence" "$file"
  fi
done
if $check && [ "$missing" -gt 0 ]; then
  exit 1
fi
$check || echo "spdx-headers: $missing file(s) given the line"
