#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Speed and accuracy of quillmere-forecast beside two astronomy-library peers (libnova, astronomy-engine).
# Usage: peers.bench.sh [path/to/quillmere-forecast]   (or set QUILLMERE_FORECAST)
# Runs from the source tree or from its copy in <build>/bench, where the CMake cache names the sources.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
if [ -f "$here/peers/libnova_peer.c" ]; then
  src=$(cd "$here/.." && pwd)
else
  src=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$here/../CMakeCache.txt" 2>/dev/null || true)
fi
[ -f "$src/bench/peers/libnova_peer.c" ] || { echo "peers.bench.sh: source tree not found from $here" >&2; exit 1; }
peers="$src/bench/peers"
out="$src/build/peers"
ours=${1:-${QUILLMERE_FORECAST:-$here/../bin/quillmere-forecast}}
lat=31.25 lon=-92.42 zone=6   # Alexandria, Louisiana
mkdir -p "$out"
rm -f "$out"/*.csv   # no stale results from an earlier run

cc -O2 -Wall -Wextra -o "$out/libnova_peer" "$peers/libnova_peer.c" -lnova -lm
if [ ! -d "$peers/node_modules/astronomy-engine" ]; then
  (cd "$peers" && { npm ci --no-audit --no-fund || npm install --no-audit --no-fund; })
fi

printf '%-18s %8s %12s %14s\n' program days "us/day" "100 years (s)"
# time_run NAME DAYS CMD... : runs CMD into $out/NAME.csv and prints the per-day cost.
time_run() {
  local name=$1 days=$2; shift 2
  local t0 t1
  t0=$(date +%s%N)
  "$@" > "$out/$name.csv"
  t1=$(date +%s%N)
  awk -v n="$name" -v d="$days" -v ns=$((t1 - t0)) \
    'BEGIN { us = ns / 1000 / d; printf "%-18s %8d %12.1f %14.2f\n", n, d, us, us * 36525 / 1e6 }'
}
time_run libnova 730 "$out/libnova_peer" 2000-01-01 730 $lat $lon $zone
time_run astronomy-engine 3653 node "$peers/astronomy_engine_peer.js" 2000-01-01 3653 $lat $lon $zone
if [ -n "$ours" ] && [ -x "$ours" ]; then
  time_run quillmere 36525 "$ours" days --from 1950-01-01 --days 36525 --lon 92.42W --lat 31.25N --zone $zone --format csv
else
  echo "quillmere-forecast not given (argument or QUILLMERE_FORECAST): skipped"
fi

# Accuracy against ephem on the first year of each timed run (one place; tools/riseset_accuracy.py --generate covers many).
for name in libnova astronomy-engine quillmere; do
  [ -f "$out/$name.csv" ] || continue
  head -n 367 "$out/$name.csv" > "$out/$name.year.csv"
  echo "== accuracy of $name (first 366 days)"
  "$src/tools/riseset_accuracy.py" "$out/$name.year.csv:$lat:$lon:$zone" || true
done
