#!/usr/bin/env bash
# The options and the completion of names in the real game, with real keys and a second start.
#
# usage: dialogs.sh FOLDER      FOLDER holds the executable Korvel
source "$(dirname "$0")/screen.sh"

config=$tmp/config/Korvel/Korvel.conf

# toggle X...: opens the options, presses these toggles, takes over
toggle() {
  press main 135 31
  await_window dialog 388x228 '^ $'
  for x; do press dialog "$x" 122; done
  press dialog 150 198 # Übernehmen
  poll 30 is_gone || fail "expected that Übernehmen closes the options"
}
is_gone() { ! xdotool search --onlyvisible --name '^ $' >/dev/null 2>&1; }
sound=42 size1=186 size3=330

# stored TEXT: whether the store holds exactly this (its keys are sorted)
stored() { [ "$(cat "$config" 2>/dev/null)" = "$1" ]; }

# The left field of size 3 reaches from 17 to 340; size 2 from 34 to 322.
is_size_3() {
  import -silent -window root "$tmp/screen.ppm" &&
    [ "$(convert "$tmp/screen.ppm" -format "%[pixel:p{$((wx[main] + 17)),$((wy[main] + 68 + 150))}]" \
      info:)" = "srgb(0,0,0)" ]
}

# name KEY...: the hash of the name above the field after a game begun under the name typed so
name() {
  press main 45 31
  await_window dialog 284x203 '^Neues Spiel$'
  xdotool windowfocus "${window[dialog]}" key "$@"
  press dialog 80 112 108 180 # size 1, OK
  poll 30 is_begun || fail "expected that OK closes the dialog"
  press main 65 146 # comes after the new name
  poll 30 has_boat || fail "expected a new game of size 1"
  convert "$tmp/screen.ppm" -crop "253x19+$((wx[main] + 52))+$((wy[main] + 114))" +repage \
    -format '%#' info:
}
is_begun() { ! xdotool search --onlyvisible --name '^Neues Spiel$' >/dev/null 2>&1; }
has_boat() { # its first point is blue
  import -silent -window root "$tmp/screen.ppm" &&
    [ "$(convert "$tmp/screen.ppm" -format "%[pixel:p{$((wx[main] + 65)),$((wy[main] + 146))}]" \
      info:)" = "srgb(0,0,255)" ]
}

end_game() {
  request_close
  await_end "the close request"
}

# What is taken over is stored, and holds in the next start.
rm "$config"
start
[ ! -e "$config" ] || fail "settings are stored at the start"
toggle
poll 30 stored $'[Options]\nHelp=1\nSound=1\nStdSize=2' || fail "the store after taking over unchanged"
toggle $sound $size3
poll 30 stored $'[Options]\nHelp=1\nSound=0\nStdSize=3' || fail "the store after taking over"
! is_size_3 || fail "the size changed at once"
end_game
start
poll 30 is_size_3 || fail "expected fields of size 3"
toggle
stored $'[Options]\nHelp=1\nSound=0\nStdSize=3' || fail "the options of the second start"

# Names are completed, what a dead key composes too.
printf 'Anna\r\nJulia\r\n\xc9mile\r\n' >"$tmp/Combo.txt"
completed="$(name J u) $(name j u) $(name dead_acute e)"
rm "$tmp/Combo.txt"
typed="$(name J u l i a) $(name J u l i a) $(name dead_acute E m i l e)"
[ "$completed" = "$typed" ] || fail "expected the same names: $completed and $typed"
[ "$(name J u)" != "${typed%% *}" ] || fail "without a list nothing is completed"
end_game

# A store that cannot be written: the choice holds until the end.
rm -r "$tmp/config/Korvel"
touch "$tmp/config/Korvel" # where its folder should be
start
toggle $size1
toggle $sound $size3
name J o >/dev/null
end_game
[ -f "$tmp/config/Korvel" ] || fail "the store was touched"

echo "passed in $SECONDS s"
