#!/usr/bin/env bash
# Plays one whole battle in the real game, then closes it at two bad moments.
#
# The game takes presses in order. So that a press sets nothing shows in the next ones, which would
# then set no whole fleet. Any winner will do, and no pause has to be long enough.
source "$(dirname "$0")/screen.sh"

# The fleet, with the cells 4,3 and 5,3, which are refused.
fleet="1,1 2,1 3,1 3,2 4,3 5,1 6,1 7,1 1,4 1,5 2,5 9,1 10,1 4,4 5,3 4,5 6,3 8,5 10,8"

points() { # CELL...: their pixels
  for cell; do echo $((25 * ${cell%,*} + 41)) $((25 * ${cell#*,} + 122)); done
}
left() { look 250x200 53 134 "$@"; }
right() { look 250x200 397 134 "$@"; }

question() { await_window dialog 354x141 '^ $'; }
set_fleet() {
  press main $(points $fleet)
  question
  press dialog 126 110 # Ja
  poll 30 has_moved || fail "expected the fleet on the right field alone"
}
# An empty field looks the same on both sides.
is_empty() { water=$(right) && [ "$(left)" = "$water" ]; }
has_moved() { [ "$(left)" = "$water" ] && [ "$(right)" != "$water" ]; }

red() { # 1|0: whether there is red text on the top ten
  [ "$(look 260x225 216 154 -fill black +opaque '#ff0000' -format '%[fx:maxima.r]')" = "$1" ]
}

is_filed() { # the winner, in place 1
  [ "$(stat -c %s "$own/Score.hsc")" = 1800 ] &&
    head -c 30 "$own/Score.hsc" | iconv -f cp1252 | grep -aqE 'Computer|Jörg'
}

# A whole battle, whose pauses are a third as long.
cc -shared -fPIC -x c -o "$tmp/hurry.so" - <<'C' || fail "expected a C compiler"
#include <time.h>
int nanosleep(const struct timespec *time, struct timespec *rest) {
  struct timespec shorter = {time->tv_sec / 3, time->tv_sec % 3 * 333333333 + time->tv_nsec / 3};
  return clock_nanosleep(CLOCK_MONOTONIC, 0, &shorter, rest);
}
C
start LD_PRELOAD="$tmp/hurry.so"
new_game J odiaeresis r g
press main $(points 5,4) 289 354 178 222 # a boat is begun, the dustbin, a grid line
press main $(points $fleet)
question
press dialog 206 110 # Nein
poll 30 is_empty || fail "expected no boat after Nein"
set_fleet
press main $(points 1,{1..6}) 315 31 # Ausgang, while turns are under way
question
xdotool windowfocus "${window[dialog]}" key Escape # no
await_gone
press main $(points {1..10},{1..8})
await_window dialog 388x228 '' # the end
press dialog 150 206 # Ja
await_window dialog 300x381 ''
poll 30 red 1 && poll 30 red 0 || fail "expected a row that blinks red"
press dialog 150 30 # anywhere
poll 30 is_filed || fail "expected a top ten with the winner in place 1"
press_and_close version >"$tmp/version"
await_end "the close box"

# A close goes before the turns of forty presses, and before the question about the fleet.
start
new_game J o r g
set_fleet
presser=press_and_close press main $(points {1..5},{1..8})
await_end "forty presses and a close"
start
new_game J o r g
presser=press_and_close press main $(points $fleet)
await_end "the last boat and a close"
