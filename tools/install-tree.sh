#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs a configured and built tree into a prefix and keeps the list of what it put there,
# or removes exactly those files again.
#   install-tree.sh install BUILD_DIR PREFIX
#   install-tree.sh uninstall PREFIX
# The list (cmake's install_manifest.txt, paths relative to the prefix) stays inside the prefix,
# so an uninstall works from any build folder and after the prefix was moved.
set -eu
manifest_name=share/quillmere/install_manifest.txt

# Menus and icon themes see the change at once where these tools exist.
refresh_desktop() {
  if command -v update-desktop-database >/dev/null && [ -d "$1/share/applications" ]; then
    update-desktop-database -q "$1/share/applications" || true
  fi
  if command -v gtk-update-icon-cache >/dev/null && [ -d "$1/share/icons/hicolor" ]; then
    gtk-update-icon-cache -q -t "$1/share/icons/hicolor" || true
  fi
}

case "${1:-}" in
  install)
    build=$2
    prefix=$(realpath -m "$3")
    cmake --install "$build" --prefix "$prefix"
    # cmake ends the list without a line break.
    { sed "s|^$prefix/||" "$build/install_manifest.txt"; echo; echo "$manifest_name"; } |
      grep -v '^$' > "$prefix/$manifest_name"
    refresh_desktop "$prefix"
    ;;
  uninstall)
    prefix=$(realpath -m "$2")
    if [ ! -f "$prefix/$manifest_name" ]; then
      echo "install-tree.sh: no installation of Quillmere in $prefix ($manifest_name is missing)" >&2
      exit 1
    fi
    # The list itself is its last line, so it goes last.
    while IFS= read -r file; do
      rm -f -- "$prefix/$file"
    done < "$prefix/$manifest_name"
    # The program's own folders go when empty; shared ones (bin, share/icons/...) stay.
    for dir in share/quillmere share/doc/quillmere; do
      [ -d "$prefix/$dir" ] && find "$prefix/$dir" -depth -type d -empty -delete
    done
    refresh_desktop "$prefix"
    ;;
  *)
    echo "usage: install-tree.sh install BUILD_DIR PREFIX | uninstall PREFIX" >&2
    exit 2
    ;;
esac
