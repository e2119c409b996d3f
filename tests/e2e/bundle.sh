#!/usr/bin/env bash
# The portable bundle, packed, unpacked elsewhere and entered into a menu.
#
# usage: bundle.sh TREE FOLDER   TREE is the build tree of the preset "release", built; the unpacked
#                                bundle is left as FOLDER, a new one, for battle.sh and dialogs.sh
set -euo pipefail
[ -f "${1:-}/CPackConfig.cmake" ] && [ -n "${2:-}" ] && [ ! -e "$2" ] ||
  { echo "usage: $0 TREE FOLDER (a build tree, and a folder to be made)" >&2; exit 2; }
tests=$(cd "$(dirname "$0")" && pwd)
tree=$(cd "$1" && pwd)
folder=$(realpath "$2")
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

fail() { echo "FAILED: $*" >&2 && exit 1; }
validate() { # DESKTOP-FILE METAINFO
  desktop-file-validate "$1" || fail "$1"
  appstreamcli validate --no-net --pedantic "$2" >"$tmp/log" || fail "$2: $(<"$tmp/log")"
}

# 1. One folder, with the files that the game needs, and nothing that a game has left.
(cd "$tmp" && cpack --config "$tree/CPackConfig.cmake" -B "$tmp" >"$tmp/log") || fail "$(<"$tmp/log")"
mkdir "$tmp/un ter"\$weg
cd "$tmp/un ter"\$weg
tar xzf "$tmp"/Korvel-*.tar.gz
cd Korvel-*
[ "$(ls -A ..)" = "${PWD##*/}" ] || fail "the bundle is not one folder"
for file in Korvel libklang.so Combo.txt Hilfe.qch LICENSE LIESMICH.txt CHANGELOG.md \
  icons/korvel-{16,256}.png; do
  [ -s "$file" ] || fail "$file is missing"
done
cmp Combo.txt "$tests/../../assets/names/Combo.txt"
[ -z "$(find . -name 'Score*')" ] || fail "a top ten is in the bundle"
! readelf -d Korvel ./*.so | grep -E 'R(UN)?PATH' || fail "it looks for libraries elsewhere"

# 2. Into the menu, which finds the game in its folder, and out of it.
validate korvel.desktop de.korvel.korvel.metainfo.xml
export XDG_DATA_HOME=$tmp/data
./menue >/dev/null
entry=$tmp/data/applications/korvel.desktop
validate "$entry" "$tmp/data/metainfo/de.korvel.korvel.metainfo.xml"
command=$(python3 - "$entry" <<'PYTHON'
import re, sys
value = re.search(r"^Exec=(.*)$", open(sys.argv[1]).read(), re.M)[1].replace("\\\\", "\\")
print(re.sub(r"\\(.)", r"\1", value[1:-1]).replace("%%", "%"))
PYTHON
)
[ "$command" = "$PWD/Korvel" ] || fail "the menu starts $command"
[ -s "$tmp/data/icons/hicolor/48x48/apps/korvel.png" ] || fail "no icon"
./menue --weg >/dev/null
[ -z "$(find "$tmp/data" -type f)" ] || fail "left behind: $(find "$tmp/data" -type f)"

# 3. Left for the tests that play it.
mv "$PWD" "$folder"
