#!/usr/bin/env bash
# Sets up, builds and runs the hello sample: on the user's display where there is one, otherwise on a display of its
# own, with a picture of the window in build/demo and the events printed as lines.
. "$(dirname "$0")/lib.sh"
user_display=${DISPLAY:-}
scripts/setup.sh
scripts/build.sh
. scripts/wine.sh
wine_make_prefix x11
export WINEPREFIX=$wine_home/x11

if [ -n "$user_display" ]; then
  export DISPLAY=$user_display
  say "the form is on your display; its OK and Cancel buttons end it"
  cd build/win32/bin
  exec wine hello.exe 2>/dev/null
fi

mkdir -p build/demo
trap 'wine_stop; stop_display' EXIT
start_display
events=build/demo/events.txt
: >"$events"
(cd build/win32/bin && exec timeout 60 wine hello.exe) >"$events" 2>/dev/null &
sample=$!
find_form() { xdotool search --name '^Hello from an RC file$'; }
heard() { grep -q "$1" "$events"; }
wait_for find_form
wait_for heard '^event 32769,'
eval "$(xdotool getwindowgeometry --shell "$(find_form | head -n 1)")"
xdotool mousemove $((X + 120)) $((Y + 62)) click 1 type 'World'
wait_for heard '^event 32770,'
xdotool key Tab key space
wait_for heard '^event 32772, wParam 102,'
import -silent -window root -crop "${WIDTH}x${HEIGHT}+$X+$Y" +repage build/demo/hello.png
xdotool key Escape
wait_for heard '^event 32775,'
xdotool key alt+F4
wait "$sample" || true
tr -d '\r' <"$events"
say "the picture is build/demo/hello.png"
