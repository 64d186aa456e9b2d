#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the Debian package from the test build's own programs (cpack over its install rules),
# checks its fields, Depends and contents with dpkg-deb, runs lintian when it is installed,
# then unpacks it and runs the unpacked command-line programs.  Usage: deb_test.sh BUILD_DIR
set -eu
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

cpack -G DEB -B "$work/out" --config "$build/CPackConfig.cmake" >"$work/cpack.log" 2>&1 ||
  { cat "$work/cpack.log" >&2; fail "cpack"; }
deb=$(ls "$work"/out/quillmere_*.deb)

# Fields and Depends: the Qt libraries the programs link, found by dpkg-shlibdeps, and the
# SQLite plug-in that none links.
dpkg-deb -I "$deb" >"$work/info"
depends=$(sed -n 's/^ Depends: //p' "$work/info")
grep -qx " Architecture: $(dpkg --print-architecture)" "$work/info" || fail "Architecture"
for package in libc6 libstdc++6 libqt6core6 libqt6gui6 libqt6widgets6 libqt6sql6 \
               libqt6printsupport6 libqt6charts6 libqt6sql6-sqlite; do
  echo "$depends" | tr ',' '\n' | grep -q "^ *$package\b" || fail "Depends lacks $package: $depends"
done

# Contents: the programs, their manuals and completions, the desktop's files and the data;
# nothing of the tests or benchmarks.
dpkg-deb -c "$deb" | awk '{print $6}' >"$work/contents"
id=io.github.quillmere.Quillmere
for path in bin/quillmere bin/quillmere-forecast bin/quillmere-log man/man1/quillmere.1.gz \
            man/man1/quillmere-forecast.1.gz man/man1/quillmere-log.1.gz \
            bash-completion/completions/quillmere-log zsh/site-functions/_quillmere-forecast \
            applications/$id.desktop metainfo/$id.metainfo.xml quillmere/seed/Encdb.MDB \
            doc/quillmere/copyright doc/quillmere/changelog.gz; do
  case $path in bin/*) ;; *) path=share/$path ;; esac
  grep -qx "./usr/$path" "$work/contents" || fail "the package lacks /usr/$path"
done
! grep -E 'test_|bench_|gtest|/include/' "$work/contents" || fail "test or build files in the package"

if command -v lintian >/dev/null; then
  ! lintian --tag-display-limit 0 "$deb" 2>&1 | tee /dev/stderr | grep -q "^E:" || fail "lintian"
fi

# The unpacked programs run from where they lie (the installed window program's start and its
# data found beside it are install_test.sh's).
dpkg-deb -x "$deb" "$work/unpacked"
bin=$work/unpacked/usr/bin
mkdir -m 700 -p "$work/home/runtime"
export HOME="$work/home" XDG_CONFIG_HOME="$work/home/config" XDG_DATA_HOME="$work/home/data" \
       XDG_RUNTIME_DIR="$work/home/runtime"
unset QUILLMERE_HOME QUILLMERE_DATA
"$bin/quillmere-forecast" days --from 2024-03-10 --lon 92.42W --lat 31.25N --zone 6 |
  grep -q '^2024-03-10 ' || fail "the unpacked quillmere-forecast"
"$bin/quillmere-log" --version | grep -qx 'quillmere-log 0.1.0' || fail "quillmere-log --version"
"$bin/quillmere-log" list >/dev/null || fail "quillmere-log list"
echo "package $(basename "$deb"): Depends: $depends"
