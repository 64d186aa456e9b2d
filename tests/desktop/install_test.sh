#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the build into a temporary prefix and checks that the desktop finds the program
# there: programs, launcher, icons of the sizes their folders name, software-centre entry,
# help and data; the launcher and the entry pass the desktop's own validators when those are
# installed; and the installed program, moved elsewhere, starts and seeds its folder from the
# data installed beside it; an uninstall then removes every file the install put there.
# Usage: install_test.sh BUILD_DIR SOURCE_DIR
set -eu
build=$1
install_tree=$2/tools/install-tree.sh
id=io.github.quillmere.Quillmere
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

sh "$install_tree" install "$build" "$work/prefix" >/dev/null
share=$work/prefix/share
for f in bin/quillmere bin/quillmere-forecast bin/quillmere-log share/applications/$id.desktop \
         share/metainfo/$id.metainfo.xml share/icons/hicolor/scalable/apps/$id.svg \
         share/quillmere/seed/Quillmere.html share/quillmere/default_schema.sql; do
  [ -f "$work/prefix/$f" ] || fail "$f is not installed"
done
[ ! -e "$share/quillmere/desktop" ] || fail "the desktop files went into the data folder too"

# Each PNG is as large as its folder says (width and height from the PNG header).
for size in 16 32 48 64 128 256; do
  png=$share/icons/hicolor/${size}x${size}/apps/$id.png
  [ -f "$png" ] || fail "no ${size}x${size} icon"
  python3 -c 'import struct,sys; d = open(sys.argv[1], "rb").read(24); n = int(sys.argv[2])
assert d[:8] == b"\x89PNG\r\n\x1a\n" and struct.unpack(">II", d[16:24]) == (n, n)' \
    "$png" "$size" || fail "icon $png"
done

# The launcher starts the installed program under the installed icon's name.
grep -qx "Exec=quillmere" "$share/applications/$id.desktop" || fail "Exec"
grep -qx "Icon=$id" "$share/applications/$id.desktop" || fail "Icon"
! command -v desktop-file-validate >/dev/null ||
  desktop-file-validate "$share/applications/$id.desktop" || fail "desktop-file-validate"
! command -v appstreamcli >/dev/null ||
  appstreamcli validate --pedantic --no-net "$share/metainfo/$id.metainfo.xml" >/dev/null ||
  fail "appstreamcli validate --pedantic"

# Moved elsewhere, the program still finds its data: a mark put into the installed help must
# reach the program folder it seeds on its first start.
mv "$work/prefix" "$work/moved"
echo "<!-- installed copy -->" >> "$work/moved/share/quillmere/seed/Quillmere.html"
mkdir -m 700 -p "$work/runtime"
status=0
env -u QUILLMERE_DATA -u QUILLMERE_HOME HOME="$work/home" XDG_CONFIG_HOME="$work/home/config" \
    XDG_DATA_HOME="$work/home/data" XDG_RUNTIME_DIR="$work/runtime" QT_QPA_PLATFORM=offscreen \
    timeout 5 "$work/moved/bin/quillmere" >"$work/out" 2>&1 || status=$?
[ "$status" = 124 ] || { cat "$work/out" >&2; fail "the installed program ended with $status"; }
help=$work/home/data/Quillmere/Quillmere.html
[ -f "$help" ] || fail "the program folder was not seeded"
grep -q "installed copy" "$help" || fail "the help came from elsewhere than the installed data"

# What the install put there goes; the menu's and icon theme's caches, which the desktop's
# tools keep for every program of the prefix, stay.
sh "$install_tree" uninstall "$work/moved"
left=$(find "$work/moved" -type f ! -name mimeinfo.cache ! -name icon-theme.cache)
[ -z "$left" ] || fail "left after the uninstall: $left"
[ ! -e "$work/moved/share/quillmere" ] || fail "share/quillmere is left after the uninstall"
echo "installed, started from $work/moved and uninstalled"
