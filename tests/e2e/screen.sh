# Sourced by the tests that play the real game: its windows in an X server of its own, presses by
# xdotool, pictures by ImageMagick. The first argument is what bundle.sh has left.
set -u
tmp=$(mktemp -d) screenshot=/tmp/korvel-test-$$.png
game='' xvfb=''
declare -A window wx wy
export LC_ALL=C.UTF-8 MAGICK_THREAD_LIMIT=1
trap '{ kill -KILL $game; kill $xvfb; wait; rm -rf "$tmp"; } 2>/dev/null' EXIT

fail() { # WORDS...
  import -silent -window root "$screenshot"
  echo "FAILED after $SECONDS s: $*; the screen: $screenshot" && cat "$tmp"/*.log
  exit 1
} >&2

# poll SECONDS COMMAND...: repeats the command until it succeeds
poll() {
  local end=$((SECONDS + $1))
  until "${@:2}"; do ((SECONDS < end)) && sleep 0.05 || return 1; done
}

# await_window main|dialog SIZE NAME-PATTERN
await_window() { poll 60 find_window "$@" || fail "expected a visible window '$3' of $2"; }
find_window() {
  local id X Y WIDTH='' HEIGHT=''
  for id in $(xdotool search --onlyvisible --name "$3" 2>/dev/null); do
    eval "$(xdotool getwindowgeometry --shell "$id" 2>/dev/null)"
    [ "${WIDTH}x$HEIGHT" = "$2" ] && window[$1]=$id wx[$1]=$X wy[$1]=$Y && return
  done
  return 1
}

await_gone() { poll 30 is_gone || fail "expected that the dialog closes"; }
is_gone() { ! xdotool search --onlyvisible --name '' 2>/dev/null | grep -qx "${window[dialog]}"; }

# look SIZE X Y OPTION...: a part of the main window as ImageMagick describes it, by default by hash
look() {
  import -silent -window root ppm:- | convert - \
    -crop "$1+$((wx[main] + $2))+$((wy[main] + $3))" +repage -format '%#\n' "${@:4}" info:
}

# press main|dialog X Y [X Y]...: one at once after another; then the pointer goes aside at once
press() {
  local i chain=()
  for ((i = 2; i < $#; i += 2)); do
    chain+=(mousemove $((wx[$1] + ${@:i:1})) $((wy[$1] + ${@:i+1:1})) click --delay 0 1)
  done
  ${presser-xdotool} "${chain[@]}" mousemove 1 1
}

# press_and_close COMMAND OF XDOTOOL...: and at once after it what a click on the close box sends
press_and_close() {
  python3 - "${window[main]}" "$@" <<'PYTHON'
import ctypes, subprocess, sys
x = ctypes.CDLL("libX11.so.6")
x.XOpenDisplay.restype = ctypes.c_void_p
display, window = ctypes.c_void_p(x.XOpenDisplay(None)), int(sys.argv[1])
protocols, close = (x.XInternAtom(display, b"WM_" + s, 0) for s in (b"PROTOCOLS", b"DELETE_WINDOW"))
subprocess.run(["xdotool", *sys.argv[2:]], check=True)
x.XSendEvent(display, window, 0, 0, (ctypes.c_long * 24)(33, 0, 1, 0, window, protocols, 32, close))
x.XCloseDisplay(display)
PYTHON
}

# await_end EVENT: of the process, with status 0 and without a word
await_end() {
  poll 10 test ! -e "/proc/$game" || fail "the game still runs 10 s after $1"
  wait "$game" && [ ! -s "$tmp/game.log" ] || fail "exit status $? or messages after $1"
  game=''
}

# start [VARIABLE=VALUE]...: the game, up to its main window
start() {
  env -i LC_ALL="$LC_ALL" DISPLAY="$DISPLAY" SDL_AUDIODRIVER=dummy HOME="$tmp" \
    XDG_RUNTIME_DIR="$tmp/run" "$@" "$program" >"$tmp/game.log" 2>&1 &
  game=$!
  await_window main 700x473 '^Korvel$'
}

# new_game KEY...: types a name by these keys, begins a game of size 1
new_game() {
  press main 45 31
  await_window dialog 284x203 '^Neues Spiel$'
  xdotool windowfocus "${window[dialog]}" key "$@"
  press dialog 80 112 108 180 # size 1, OK
  await_gone
}

program=$(echo "$1"/usr/games/korvel) own=$tmp/.local/share/Korvel # the player's files
if [ ! -e "$program" ]; then
  program=$tmp/Korvel own=$tmp
  cp -r "$1"/* "$tmp" || exit # what it writes beside itself stays here
fi
mkdir -p -m 700 "$tmp/run" "$tmp/.config/Korvel"
printf '[Options]\nSound=0\nHelp=0\nStdSize=2\n' >"$tmp/.config/Korvel/Korvel.conf"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset 3>"$tmp/display" 2>"$tmp/x.log" &
xvfb=$!
poll 30 test -s "$tmp/display" || fail "expected an X server"
export DISPLAY=:$(<"$tmp/display")
setxkbmap de || fail "expected a German keyboard"
