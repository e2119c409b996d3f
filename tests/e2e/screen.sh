# Sourced by the tests that play the real game: its window in an X server of its own, presses by
# xdotool. The first argument is the folder that holds the executable Korvel.
set -u
[ -x "${1:-}/Korvel" ] || { echo "usage: $0 FOLDER (with the executable Korvel)" >&2; exit 2; }
for tool in Xvfb setxkbmap xdotool import convert python3; do
  command -v $tool >/dev/null || { echo "$tool is missing" >&2; exit 1; }
done
[ -n "${TEST_LIMITED:-}" ] || TEST_LIMITED=1 exec timeout -k 10 580 bash "$0" "$1"

tmp=$(mktemp -d)
xvfb='' game=''
declare -A window wx wy
export LC_ALL=C.UTF-8 MAGICK_THREAD_LIMIT=1

cleanup() {
  [ -z "$game" ] || kill -KILL "$game"
  [ -z "$xvfb" ] || kill "$xvfb"
  wait
  rm -rf "$tmp"
} 2>/dev/null
trap cleanup EXIT
trap 'exit 1' HUP INT TERM

fail() { # WORDS...
  local picture
  picture=$(mktemp -t korvel-test-XXXXXX --suffix=.png)
  import -silent -window root "$picture"
  echo "FAILED after $SECONDS s: $*"
  explain
  cat "$tmp"/*.log
  echo "The screen: $picture"
  exit 1
} >&2
explain() { :; } # what the test saw last

# poll SECONDS COMMAND...: repeats the command until it succeeds
poll() {
  local end=$((SECONDS + $1))
  until "${@:2}"; do
    ((SECONDS < end)) || return 1
    sleep 0.1
  done
}

# await_window main|dialog SIZE NAME-PATTERN
await_window() { poll 30 find_window "$@" || fail "expected a visible window '$3' of $2"; }
find_window() {
  local id X Y WIDTH HEIGHT
  for id in $(xdotool search --onlyvisible --name "$3" 2>/dev/null); do
    WIDTH='' HEIGHT=''
    eval "$(xdotool getwindowgeometry --shell "$id" 2>/dev/null)"
    [ "${WIDTH}x$HEIGHT" = "$2" ] && window[$1]=$id wx[$1]=$X wy[$1]=$Y && return
  done
  return 1
}

# await_end EVENT: of the process, with status 0
await_end() {
  local status
  poll 10 has_ended || fail "the game still runs 10 s after $1"
  wait "$game"
  status=$?
  game=''
  ((status == 0)) || fail "exit status $status after $1; expected 0"
  [ ! -s "$tmp/game.log" ] || fail "the game has complained"
}
has_ended() { ! kill -0 "$game" 2>/dev/null; }

# Pressing. Afterwards the pointer stands aside, where it lights up nothing.

# press main|dialog X Y [X Y]...; with presser=press_and_close the main window is closed right after
press() {
  local x=${wx[$1]} y=${wy[$1]} chain=()
  shift
  while (($#)); do
    chain+=(mousemove $((x + $1)) $((y + $2)) click 1)
    shift 2
  done
  ${presser-xdotool} "${chain[@]}" mousemove 1 1
}

request_close() { press_and_close version >/dev/null; }

# press_and_close COMMAND OF XDOTOOL...: what a click on the close box sends, at once after the command
press_and_close() {
  python3 - "${window[main]}" "$@" <<'PYTHON'
import ctypes, subprocess, sys
from ctypes import c_char_p, c_int, c_long, c_ulong, c_void_p

class ClientMessage(ctypes.Structure):
    _fields_ = [("type", c_int), ("serial", c_ulong), ("send_event", c_int), ("display", c_void_p),
                ("window", c_ulong), ("message", c_ulong), ("format", c_int), ("data", c_long * 24)]

x = ctypes.CDLL("libX11.so.6")
x.XOpenDisplay.restype = c_void_p
x.XInternAtom.argtypes, x.XInternAtom.restype = [c_void_p, c_char_p, c_int], c_ulong
x.XSendEvent.argtypes = [c_void_p, c_ulong, c_int, c_long, c_void_p]
x.XCloseDisplay.argtypes = [c_void_p]
display, window = x.XOpenDisplay(None), int(sys.argv[1])
protocols, close = (x.XInternAtom(display, name, 0) for name in (b"WM_PROTOCOLS", b"WM_DELETE_WINDOW"))
subprocess.run(["xdotool", *sys.argv[2:]], check=True)
event = ClientMessage(33, 0, 1, display, window, protocols, 32, (close,))
x.XSendEvent(display, window, 0, 0, ctypes.byref(event))
x.XCloseDisplay(display)
PYTHON
}

# start: the game, up to its main window
start() {
  env -i PATH="$PATH" LD_LIBRARY_PATH="${LD_LIBRARY_PATH-}" LSAN_OPTIONS="${LSAN_OPTIONS-}" \
    LC_ALL="$LC_ALL" DISPLAY="$DISPLAY" QT_QPA_PLATFORM=xcb SDL_AUDIODRIVER=dummy \
    HOME="$tmp" XDG_CONFIG_HOME="$tmp/config" XDG_RUNTIME_DIR="$tmp/run" \
    "$tmp/Korvel" >"$tmp/game.log" 2>&1 &
  game=$!
  await_window main 700x473 '^Korvel$'
}

# Settings at first: quiet, without hints, size 2.
mkdir -p "$tmp/config/Korvel"
mkdir -m 700 "$tmp/run"
printf '[Options]\nSound=0\nHelp=0\nStdSize=2\n' >"$tmp/config/Korvel/Korvel.conf"
cp -r "$1"/* "$tmp" # what it writes beside itself stays here
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset 3>"$tmp/display" 2>"$tmp/x.log" &
xvfb=$!
poll 30 test -s "$tmp/display" || fail "expected an X server"
DISPLAY=:$(<"$tmp/display")
export DISPLAY
setxkbmap de || fail "expected a German keyboard"
