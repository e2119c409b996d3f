#!/usr/bin/env bash
# The options and the completion of names in the real game, with real keys and a second start.
source "$(dirname "$0")/screen.sh"

stored() { [ "$(tr '\n' ' ' <"$tmp/.config/Korvel/Korvel.conf")" = "[Options] $1 " ]; }
is_size_3() { # which reaches from 17 to 340; size 2 from 34 to 322
  [ "$(look 1x1 17 218 -format '%[pixel:p{0,0}]')" = "srgb(0,0,0)" ]
}

# call KEY...: begins a game under a name typed so; `name` is then what it looks like
call() {
  new_game "$@"
  poll 30 is_renamed || fail "expected another name after $*"
}
name=''
is_renamed() {
  local before=$name
  name=$(look 253x19 52 114) && [ "$name" != "$before" ]
}

# What is taken over is stored, and holds in the next start.
start
press main 135 31
await_window dialog 388x228 '^ $'
press dialog 42 122 330 122 150 198 # sound on, size 3, Übernehmen
poll 30 stored "Help=0 Sound=1 StdSize=3" || fail "the store after taking over"
press_and_close version >"$tmp/version"
await_end "taking over"
start SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE="$tmp/heard"
poll 30 is_size_3 || fail "expected fields of size 3"

# Names are completed, from the list that came with the game or the player's own, what a dead key
# composes too.
new_game x
press main 45 31
await_window dialog 284x203 '^Neues Spiel$' # so the field of size 1 has been painted
is_renamed # from nothing
call A n n a && anna=$name
call x && call A n
[ "$name" = "$anna" ] || fail "Anna was not completed"
printf 'Emil\r\nJulia\r\n\xc9mile\r\n' >"$own/Combo.txt"
call J u l i a && julia=$name
call dead_acute E m i l e && emile=$name
call j u
[ "$name" = "$julia" ] || fail "Julia was not completed"
call dead_acute e
[ "$name" = "$emile" ] || fail "Émile was not completed"

press main 225 31 # the top ten, with its jingle
poll 30 grep -qa '[^[:cntrl:]]' "$tmp/heard" || fail "expected to hear something"
await_window dialog 300x381 ''
press dialog 150 30
await_gone
press main 405 31
await_window help 860x600 'Hilfe$'
