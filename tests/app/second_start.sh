#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# A second start of the real program raises the running one and exits quietly with status 0.
# Usage: second_start.sh PATH-TO-quillmere
set -u
program=$1
root=$(mktemp -d)
trap 'kill "$first" 2>/dev/null; wait "$first" 2>/dev/null; rm -rf "$root"' EXIT
export HOME="$root/home" XDG_CONFIG_HOME="$root/config" XDG_RUNTIME_DIR="$root/run" \
       QUILLMERE_HOME="$root/data" QT_QPA_PLATFORM=offscreen \
       QT_LOGGING_RULES="quillmere.instance.info=true"
mkdir -p "$HOME" "$XDG_CONFIG_HOME" "$QUILLMERE_HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR"

# Waits up to 20 s for the first copy's log to hold the text.
logged() {
  for _ in $(seq 200); do
    grep -q "$1" "$root/first.log" && return 0
    sleep 0.1
  done
  echo "the first copy never logged '$1':"; cat "$root/first.log"; return 1
}

"$program" >"$root/first.log" 2>&1 &
first=$!
logged "listening" || exit 1
QT_LOGGING_RULES= timeout 20 "$program" >"$root/second.out" 2>&1
status=$?; [ "$status" -eq 0 ] || { echo "the second start ended with status $status"; exit 1; }
[ -s "$root/second.out" ] && { echo "the second start said:"; cat "$root/second.out"; exit 1; }
logged "raise requested" || exit 1
kill -0 "$first" || { echo "the first copy ended"; exit 1; }
echo "second start raised the first and exited quietly"
