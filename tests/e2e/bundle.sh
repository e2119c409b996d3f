#!/usr/bin/env bash
# The portable bundle, packed, unpacked elsewhere and entered into a menu; or Debian's package.
#
# usage: bundle.sh TREE FOLDER   TREE is a built tree of the preset "release" or "debian"; what was
#                                packed is left as FOLDER, a new one, for play.py
set -euo pipefail
names=$(realpath "$(dirname "$0")/../../assets/names/Combo.txt")
tree=$(realpath "$1") folder=$(realpath "$2")
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
fail() { echo "FAILED: $*" >&2 && exit 1; }
validate() { # DATA-FOLDER: what menus and software centres read
  desktop-file-validate "$1/applications/korvel.desktop"
  appstreamcli validate --no-net --pedantic "$1"/metainfo/*.xml
}

cpack --config "$tree/CPackConfig.cmake" -B "$tmp" >"$tmp/log" || fail "$(<"$tmp/log")"

# Debian's package keeps to its policy.
if [ ! -e "$tmp"/Korvel-*.tar.gz ]; then
  lintian --pedantic --display-info --fail-on error,warning,pedantic,info "$tmp"/korvel_*.deb
  dpkg-deb -x "$tmp"/korvel_*.deb "$folder"
  validate "$folder/usr/share"
  exit
fi

# 1. One folder, with the files that the game needs.
mkdir "$tmp/un ter\$weg"
tar xzf "$tmp"/Korvel-*.tar.gz -C "$tmp/un ter\$weg"
cd "$tmp/un ter\$weg"/Korvel-*
[ "$(ls -A ..)" = "${PWD##*/}" ] || fail "the bundle is not one folder"
for file in Korvel libklang.so Hilfe.qch LICENSE LIESMICH.txt CHANGELOG.md icons/korvel-256.png; do
  [ -s "$file" ] || fail "$file is missing"
done
cmp Combo.txt "$names"
! readelf -d Korvel ./*.so | grep -E 'R(UN)?PATH' || fail "it looks for libraries elsewhere"

# 2. Into the menu, which finds the game in its folder, and out of it.
for line in Exec=Korvel Icon=korvel; do grep -qx "$line" korvel.desktop || fail "not $line"; done
export XDG_DATA_HOME=$tmp/data
./menue >"$tmp/log"
entry=$tmp/data/applications/korvel.desktop
validate "$tmp/data"
grep -qxF "Exec=\"${PWD/\$/\\\\\$}/Korvel\"" "$entry" || fail "$(grep Exec "$entry")"
[ -s "$tmp/data/icons/hicolor/48x48/apps/korvel.png" ] || fail "no icon"
./menue --weg >"$tmp/log"
[ -z "$(find "$tmp/data" -type f)" ] || fail "left behind: $(find "$tmp/data" -type f)"

mv "$PWD" "$folder"
