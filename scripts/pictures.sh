#!/usr/bin/env bash
# Makes the pictures of the docs by running the samples on a display of their own.
#   scripts/pictures.sh [NAME...]
# Each NAME is one of the pictures below; without any, all are made, into docs/pictures.
. "$(dirname "$0")/lib.sh"
scripts/setup.sh
build_preset win32 brelt controls hello hints trackrect
. scripts/wine.sh
wine_make_prefix x11
export WINEPREFIX=$wine_home/x11
pictures=docs/pictures
mkdir -p "$pictures"
events=$(mktemp)
trap 'wine_stop; stop_display; rm -f "$events"' EXIT
start_display

heard() { grep -q "$1" "$events"; }
pointer_is() { xdotool getmouselocation | grep -q "^x:$1 y:$2 "; }
find_window() { xdotool search --onlyvisible --name "^$1\$"; }

# start_sample NAME TITLE: runs a sample and sets X, Y, WIDTH and HEIGHT to where its form with that title is.
start_sample() {
  : >"$events"
  (cd build/win32/bin && exec timeout 60 wine "$1.exe") >"$events" 2>/dev/null &
  sample=$!
  wait_for find_window "$2"
  wait_for heard '^event 32769,'
  eval "$(xdotool getwindowgeometry --shell "$(find_window "$2" | head -n 1)")"
}
end_sample() {
  xdotool key alt+F4
  wait "$sample" || true
}
# take_picture NAME X Y WIDTH HEIGHT, in the form's own coordinates: once it has stood still, so that all is painted.
take_picture() {
  local previous='' now=' '
  until [ "$now" = "$previous" ]; do
    previous=$now
    import -silent -window root -crop "$4x$5+$((X + $2))+$((Y + $3))" +repage -strip "$pictures/$1.png"
    now=$(sha256sum "$pictures/$1.png")
    sleep 0.1
  done
  say "made $pictures/$1.png"
}

picture_controls() {
  start_sample controls 'Controls'
  # Fill, then sort.
  xdotool key alt+f
  wait_for heard '^event 32772, wParam 141,'
  xdotool key alt+s
  wait_for heard '^event 32772, wParam 142,'
  xdotool mousemove $((X + 5)) $((Y + 300))
  take_picture controls 0 0 "$WIDTH" "$HEIGHT"
  end_sample
}

picture_hello() {
  start_sample hello 'Hello from an RC file'
  # A name, and the check box by the keyboard.
  xdotool mousemove $((X + 120)) $((Y + 62)) click 1 type 'World'
  wait_for heard '^event 32770,'
  xdotool key Tab key space
  wait_for heard '^event 32772, wParam 102,'
  xdotool mousemove $((X + 5)) $((Y + 200))
  take_picture hello 0 0 "$WIDTH" "$HEIGHT"
  end_sample
}

picture_rubberband() {
  start_sample trackrect 'Press on a card and drag it'
  # The second card by its bottom right handle, which takes the pointer to the card's corner: the drag has begun.
  xdotool mousemove $((X + 227)) $((Y + 118)) mousedown 1
  wait_for pointer_is $((X + 231)) $((Y + 122))
  xdotool mousemove $((X + 300)) $((Y + 190))
  take_picture rubberband 0 0 "$WIDTH" "$HEIGHT"
  xdotool mouseup 1
  end_sample
}

picture_tooltip() {
  start_sample hints 'Rest the pointer on a button'
  # In two steps: the first sight of the pointer isn't a movement.
  xdotool mousemove $((X + 150)) $((Y + 120)) mousemove $((X + 110)) $((Y + 45))
  wait_for find_window Tooltip_window
  take_picture tooltip 0 0 "$WIDTH" "$HEIGHT"
  find_window Tooltip_window >/dev/null || die "the hint was gone before its picture was taken"
  end_sample
}

[ $# -gt 0 ] || set -- controls hello rubberband tooltip
for picture in "$@"; do
  declare -F "picture_$picture" >/dev/null || die "no picture is called $picture"
  "picture_$picture"
done
