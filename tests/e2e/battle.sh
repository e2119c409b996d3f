#!/usr/bin/env bash
# Plays the real game in a window of its own X server: presses by xdotool, looks at the screen only.
#
# usage: battle.sh FOLDER      FOLDER holds the executable Korvel
#
# A look turns the screen into text, a character for each cell and counter. What a picture means is
# learned where it must stand; unknown pictures are `x`. That a press changes nothing shows in the
# effect of a later one, as the game takes presses in order. No pause has to be long enough.
source "$(dirname "$0")/screen.sh"

boats=("1,1 2,1 3,1 3,2" "5,1 6,1 7,1" "1,4 1,5 2,5" "9,1 10,1" "4,4 4,5" "6,3" "8,5" "10,8")
still_to_set=(000223 000123 000023 000013 000003 000002 000001 000000) # after each boat
read -ra cells <<<"$(echo {1..10},{1..8})"
printf -v water '.%.0s' {1..80}
left='' right='' mine='' theirs='' bin=''
declare -A meaning

explain() {
  local row
  echo "Last look: mine=$mine theirs=$theirs bin=$bin, left and right field:"
  for ((row = 0; row < 80; row += 10)); do echo "  ${left:row:10}   ${right:row:10}"; done
}

# Looking.

# part SIZE X Y OPTION...: a part of the main window for `see`, and how it is cut
part() {
  parts+=('(' mpr:screen -crop "$1+$((wx[main] + $2))+$((wy[main] + $3))" +repage "${@:4}" +repage ')')
}

see() {
  kill -0 "$game" 2>/dev/null || fail "the game has ended by itself"
  local parts=() text='' picture
  part 250x200 53 134 -crop 25x25
  part 250x200 397 134 -crop 25x25
  part 240x25 64 428 -crop 40x25 +repage -crop 33x25+0+0
  part 240x25 408 428 -crop 40x25 +repage -crop 33x25+0+0
  part 32x32 273 338
  import -silent -window root "$tmp/screen.ppm" || return 1
  mapfile -t pictures < <(convert "$tmp/screen.ppm" -write mpr:screen +delete "${parts[@]}" \
    -format '%# %k\n' info:) # a hash and the number of colours
  ((${#pictures[@]} == 173)) || return 1
  for picture in "${pictures[@]}"; do text+=${meaning[$picture]:-x}; done
  left=${text:0:80} right=${text:80:80} mine=${text:160:6} theirs=${text:166:6} bin=${text:172}
  shots=$(count "$left" '!.#') replies=$(count "$right" '!.#')
}

# count TEXT SET: how many characters of the text are in the set, which is written as in a pattern
count() {
  local rest=${1//[$2]/}
  echo $((${#1} - ${#rest}))
}

# put TEXT CHARACTER CELL...: the text of a field with these cells changed
put() {
  local text=$1 cell i
  for cell in "${@:3}"; do
    i=$((10 * (${cell#*,} - 1) + ${cell%,*} - 1))
    text=${text:0:i}$2${text:i+1}
  done
  echo "$text"
}

# await EVENT VARIABLE=VALUE...: looks until a look gives these values
await() { poll 30 looks_so "${@:2}" || fail "after $1; expected ${*:2}"; }
looks_so() {
  local pair variable
  see || return 1
  for pair; do
    variable=${pair%%=*}
    [ "${!variable}" = "${pair#*=}" ] || return 1
  done
}

press_cells() {
  local points=() cell
  for cell; do points+=($((25 * ${cell%,*} + 41)) $((25 * ${cell#*,} + 122))); done
  press main "${points[@]}"
}

# answer X: presses a button of the question, which has to come up
ja=126 nein=206
answer() {
  await_window dialog 354x141 '^ $'
  press dialog "$1" 110
}

# The game, step by step.

# new_game FILE KEY...: types a name by these keys, leaves its picture in the file
new_game() {
  press main 45 31
  await_window dialog 284x203 '^Neues Spiel$'
  xdotool windowfocus "${window[dialog]}" key "${@:2}"
  press dialog 80 112 108 180 # size 1, OK
  poll 30 is_new_game || fail "expected two new fields of size 1 and the counters 001223 and 000000"
  convert "$tmp/screen.ppm" -crop "253x19+$((wx[main] + 52))+$((wy[main] + 114))" +repage \
    -shave 2x2 +repage "$1"
}

# New fields are all water, and all counters of the computer are 0: so these pictures become known.
is_new_game() {
  local i
  see || return 1
  for i in {1..159}; do [ "${pictures[i]}" = "${pictures[0]}" ] || return 1; done
  ((${pictures[0]#* } > 2)) || return 1 # more than lines on an empty field
  for i in {167..171}; do [ "${pictures[i]}" = "${pictures[166]}" ] || return 1; done
  meaning[${pictures[0]}]=. meaning[${pictures[172]}]=grey meaning[${pictures[165]}]=3
  meaning[${pictures[163]}]=2 meaning[${pictures[162]}]=1 meaning[${pictures[166]}]=0
  looks_so mine=001223 theirs=000000
}

# Presses that set nothing, and the dustbin.
set_and_discard() {
  press main 78 147 # the line between the cells 1,1 and 2,1
  press_cells 5,4
  await "a grid line and 5,4" left="$(put "$water" x 5,4)" bin=x
  press_cells 6,5 6,4
  await "a diagonal cell and 6,4" left="$(put "$water" x 5,4 6,4)" bin=x
  press main 289 354
  await "the dustbin" left="$water" right="$water" bin=grey mine=001223 theirs=000000
}

set_fleet() {
  local i boat mark=x
  [[ " ${meaning[*]} " != *' # '* ]] || mark='#'
  fleet=$water
  for i in "${!boats[@]}"; do
    read -ra boat <<<"${boats[i]}"
    press_cells "${boat[@]}"
    if ((i == 0)); then # the picture of boats becomes known
      await "boat 1" left="$(put "$water" "$mark" "${boat[@]}")" mine="${still_to_set[0]}"
      meaning[${pictures[0]}]='#'
    fi
    fleet=$(put "$fleet" '#' "${boat[@]}")
    await "boat $((i + 1))" left="$fleet" right="$water" mine="${still_to_set[i]}" theirs=000000
  done
  answer $ja
  await "Ja" left="$water" right="$fleet" mine=001223 theirs=001223
}

# Shot by shot until a reply has missed, whose picture becomes known as `o`; then two cells again.
shoot_singly() {
  local i=0 j
  until ((i >= 3)) && [[ $right == *o* ]]; do
    press_cells "${cells[i++]}"
    await "shot $i" shots=$i replies=$i
    for j in {0..79}; do
      [ "${fleet:j:1}${right:j:1}" != .x ] || meaning[${pictures[80 + j]}]=o
    done
    see
  done
  press_cells "${cells[0]}" "${cells[1]}" "${cells[i]}"
  press main 66 147 315 31 # a repeated cell, and the question of Ausgang after its sound
  answer $nein
  await "two repeated cells and shot $((i + 1))" shots=$((i + 1)) replies=$((i + 1))
}

# hunt: one shot where most is unknown, or beside a boat that is hit. Pictures of hits `*` and of
# sunk boats `+` become known by what they do to the counters.
hunt() {
  local i x y cell best=-1 score counters=$theirs
  for i in {0..79}; do
    [ "${left:i:1}" = . ] || continue
    ((x = i % 10 + 1, y = i / 10 + 1))
    around "$x" "$y"
    [[ $near != *+* ]] || continue
    score=$(count "$near" .)
    [[ $beside != *\** ]] || ((score += 100))
    ((score > best)) && best=$score cell=$x,$y
  done
  press_cells "$cell"
  poll 30 has_shot "$cell" || fail "expected a shot at $cell"
  poll 30 has_reply || fail "expected a reply to the shot at $cell"
  i=$((10 * (${cell#*,} - 1) + ${cell%,*} - 1))
  [ "${left:i:1}" != x ] || {
    [ "$theirs" = "$counters" ] && meaning[${pictures[i]}]='*' || meaning[${pictures[i]}]=+
    see
  }
}
# around X Y: what is known of the neighbours, at the edges (`beside`) and all (`near`)
around() {
  local dx dy
  near='' beside=''
  for dy in -1 0 1; do
    for dx in -1 0 1; do
      (($1 + dx >= 1 && $1 + dx <= 10 && $2 + dy >= 1 && $2 + dy <= 8)) || continue
      near+=${left:10 * ($2 + dy - 1) + $1 + dx - 1:1}
      ((dx * dy != 0)) || beside+=${near: -1}
    done
  done
}
has_shot() {
  see && [ "${left:10 * (${1#*,} - 1) + ${1%,*} - 1:1}" != . ]
}
has_reply() { is_over || ((replies >= shots)); }

# end_of_game NAME: the dialog of the end, the top ten with its blinking row, the file.
end_of_game() {
  await_window dialog 388x228 ''
  press dialog 150 206 # Ja
  await_window dialog 300x381 ''
  poll 30 red 1 || fail "expected a red row"
  poll 30 red 0 || fail "expected the row to blink"
  press dialog 150 30 # anywhere
  poll 30 is_final || fail "expected as many replies as shots and 17 boat cells on the loser's field"
  python3 - "$tmp/Score.hsc" "$1" "$([ "$1" = Computer ] && echo "$replies" || echo "$shots")" <<'PYTHON' || fail "the file of the top ten"
import struct, sys
data = open(sys.argv[1], "rb").read()
texts = [data[i + 2:i + 2 + struct.unpack_from("<H", data, i)[0]].decode("cp1252")
         for i in range(0, 1800, 30)]
results = [(texts[i], texts[i + 1]) for i in range(0, 20, 2) if texts[i + 1] != "?"]
counts = [int(count) for _, count in results]
print(len(data), results)
sys.exit(len(data) != 1800 or counts != sorted(counts) or tuple(sys.argv[2:]) not in results)
PYTHON
}
# red 1|0: whether some red text is on the top ten
red() {
  local found
  import -silent -window "${window[dialog]}" "$tmp/score.ppm" || return 1
  found=$(convert "$tmp/score.ppm" -crop 260x225+16+108 +repage -fill black +opaque '#ff0000' \
    -format '%[fx:maxima.r]' info:)
  [ "$found" = "$1" ]
}

is_over() { see && [[ $mine = 000000 || $theirs = 000000 ]]; }
has_moved() { see && [ "$left$right$mine$theirs" != "$before" ]; }

# Every shot but a winning one got one reply; the left field shows the computer's whole fleet.
is_final() {
  is_over && (($(count "$left" '#x*+') == 17)) || return 1
  if [ "$theirs" = 000000 ]; then
    ((shots == replies + 1))
  else
    ((shots == replies && $(count "$right" 'x*+') == 17))
  fi
}

# A whole game.
start
new_game "$tmp/joerg.png" J odiaeresis r g
width=$(convert "$tmp/joerg.png" -trim -format %w info:)
((width > 15 && width < 45)) || fail "the name is $width pixels wide; expected Jörg alone"
set_and_discard
set_fleet
shoot_singly
press_cells "${cells[@]:shots}" # ahead: the game takes them one by one
until is_over; do
  before=$left$right$mine$theirs
  poll 30 has_moved || fail "expected that the game takes the presses that were sent ahead"
done
winner=Computer
[ "$theirs" != 000000 ] || winner=Jörg
end_of_game "$winner"
result="$winner after $shots shots and $replies replies"
last=("left=$left" "right=$right" "mine=$mine" "theirs=$theirs")
press_cells "${cells[@]}"
press main 315 31
answer $nein
await "presses after the end and Nein" "${last[@]}"

# Further games in the same window, until the other side has won as well.
first=$winner
for _ in {2..7}; do
  [ "$winner" = "$first" ] || break
  new_game "$tmp/again.png" J odiaeresis r g
  set_fleet
  if [ "$first" = Computer ]; then
    until is_over; do hunt; done
  else
    press_cells "${cells[@]}"
    poll 200 is_over || fail "expected an end"
  fi
  winner=Computer
  [ "$theirs" != 000000 ] || winner=Jörg
  end_of_game "$winner"
  result+=", $winner after $shots and $replies"
done
[ "$winner" != "$first" ] || fail "expected that either side wins once in seven games"
press main 315 31
answer $ja
await_end "Ja"

# A close request goes before the turns of forty presses, and before the question about the fleet.
start
new_game "$tmp/jorg.png" J o r g
dots=$(convert "$tmp/joerg.png" "$tmp/jorg.png" -compose difference -composite -trim \
  -format '%wx%h' info:)
[[ $dots == [1-9]x[1-5] ]] || fail "Jörg and Jorg differ in $dots pixels; expected two dots"
set_and_discard
set_fleet
presser=press_and_close press_cells "${cells[@]:0:40}"
await_end "forty presses and a close request"
start
new_game "$tmp/again.png" J o r g
read -ra fleet <<<"${boats[*]}"
presser=press_and_close press_cells "${fleet[@]}"
await_end "the last boat and a close request"

echo "passed in $SECONDS s: $result"
