#!/usr/bin/env bash
# The portable bundle, packed, unpacked elsewhere and entered into a menu.
#
# usage: bundle.sh TREE FOLDER   TREE is the build tree of the preset "release", built; the unpacked
#                                bundle is left as FOLDER, a new one, for battle.sh and dialogs.sh
set -euo pipefail
names=$(realpath "$(dirname "$0")/../../assets/names/Combo.txt")
tree=$(realpath "$1") folder=$(realpath "$2")
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
fail() { echo "FAILED: $*" >&2 && exit 1; }

# 1. One folder, with the files that the game needs.
cpack --config "$tree/CPackConfig.cmake" -B "$tmp" >"$tmp/log" || fail "$(<"$tmp/log")"
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
grep -qx Exec=Korvel korvel.desktop || fail "the desktop file starts something else"
export XDG_DATA_HOME=$tmp/data
./menue >"$tmp/log"
entry=$tmp/data/applications/korvel.desktop
desktop-file-validate "$entry"
appstreamcli validate --no-net --pedantic "$tmp"/data/metainfo/*.xml
grep -qxF "Exec=\"${PWD/\$/\\\\\$}/Korvel\"" "$entry" || fail "$(grep Exec "$entry")"
[ -s "$tmp/data/icons/hicolor/48x48/apps/korvel.png" ] || fail "no icon"
./menue --weg >"$tmp/log"
[ -z "$(find "$tmp/data" -type f)" ] || fail "left behind: $(find "$tmp/data" -type f)"

mv "$PWD" "$folder"
