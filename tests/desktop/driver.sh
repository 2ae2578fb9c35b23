# shellcheck shell=bash
# Drives the real program as a person would: on a desktop of its own, with mouse and keyboard, seeing windows,
# pictures, files and the clipboard alone. A script sources this file and passes the program on.
set -u

program=$(realpath "$1")
scratch=$(realpath "$(mktemp -d)")
folder="$scratch/app"
mkdir "$folder"
started=()
main=0
# Built with the tests; it prints where the controls are.
places="$(dirname "$program")/places"
trap finish EXIT
trap 'exit 1' INT TERM HUP

# Everything that the program started, and itself, bears this mark in its environment.
mark="DESKTOP_TEST=$scratch"

# Process ids of the program and of whatever it left running.
marked() {
  grep -lsz "^$mark$" /proc/[0-9]*/environ | cut -d/ -f3
}

finish() {
  local pid
  for pid in $(marked) "${started[@]}"; do kill -KILL "$pid" 2>/dev/null; done
  rm -rf "$scratch"
}

# fail WHAT [EXPECTED GOT]: ends the script and leaves a picture of the screen in the current folder.
fail() {
  local picture
  picture="$PWD/$(basename "$0" .sh).png"
  echo "FAILED: $1"
  [ $# -lt 2 ] || printf 'expected: %s\n     got: %s\n' "$2" "$3"
  cat "$scratch/errors" 2>/dev/null
  import -silent -window root "$picture" 2>/dev/null && echo "picture: $picture"
  exit 1
}

# wait_for CONDITION...: runs the command until it succeeds; fails when meanwhile no file has grown for a minute.
wait_for() {
  local second=$SECONDS last=$SECONDS sizes='' now
  until "$@"; do
    if [ "$second" != "$SECONDS" ]; then
      second=$SECONDS
      now=$(du -sb "$scratch" "$folder" 2>/dev/null)
      [ "$now" = "$sizes" ] || last=$SECONDS
      sizes=$now
      [ $((SECONDS - last)) -lt 60 ] || fail "waited in vain for: $*"
    fi
    sleep 0.03
  done
}

expect() {
  [ "$2" = "$3" ] || fail "$1" "$2" "$3"
}

# in_background COMMAND...: until the script ends.
in_background() {
  "$@" >/dev/null 2>&1 &
  started+=($!)
  disown
}

# No click concerns the window manager: one that looks at each first holds the mouse events of a fast hand up, and
# hands them on with places where the mouse only got to later. Its key for closing a window is Alt+F4.
start_desktop() {
  start_display
  echo '<openbox_config xmlns="http://openbox.org/3.4/rc"><mouse/></openbox_config>' >"$scratch/openbox.xml"
  in_background openbox --sm-disable --config-file "$scratch/openbox.xml"
  wait_for desktop_is_managed
}

# Without a window manager.
start_display() {
  local needed
  for needed in "$places" Xvfb openbox xdotool xprop xwininfo xclip import ffmpeg ffprobe; do
    command -v "$needed" >/dev/null || fail "$needed is not installed"
  done
  # Reset when its only client so far leaves, the server would throw out whoever is just coming.
  in_background Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp -noreset 3>"$scratch/display"
  wait_for test -s "$scratch/display"
  DISPLAY=:$(cat "$scratch/display")
  HOME=$scratch/home XDG_RUNTIME_DIR=$scratch/home
  export DISPLAY HOME XDG_RUNTIME_DIR
  mkdir -m 700 "$HOME"
  "$places" >"$scratch/places" 2>"$scratch/errors" || fail "$places does not tell the places"
}

desktop_is_managed() {
  xprop -root _NET_SUPPORTING_WM_CHECK | grep -q '#'
}

# tool NAME <SCRIPT: puts a tool beside the program that leaves a file when it begins, and then does what the
# script says.
tool() {
  # shellcheck disable=SC2016
  { printf '#!/bin/bash\n: >"$0.begun"\n' && cat; } >"$folder/$1"
  chmod +x "$folder/$1"
}

real_tool() {
  tool "$1" <<<"exec $(command -v "$1") \"\$@\""
}

# signal_tool STOP|CONT: holds the tool that runs, or lets it go on.
signal_tool() {
  marked | grep -vx "$running" | xargs -r kill -s "$1"
}

# run_program [ENVIRONMENT...]: by a link in $folder, where it then finds its tools.
run_program() {
  ln -sf "$program" "$folder/tessavane"
  env -u QT_QPA_PLATFORM -u QT_SCALE_FACTOR -u WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS=none: "$mark" "$@" \
    "$folder/tessavane" 2>"$scratch/errors" &
  running=$!
}

# start_program [ENVIRONMENT...]: up to its window.
start_program() {
  run_program "$@"
  wait_for window_is_active "Tessavane Graphic Equalizer"
  main=$window
}

# The window with that title; its id is left in $window.
window_is_active() {
  window=$(xdotool getactivewindow 2>/dev/null) && [ "$(xdotool getwindowname "$window" 2>/dev/null)" = "$1" ]
}

no_window() {
  ! xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1
}

program_has_ended() {
  ! kill -0 "$running" 2>/dev/null
}

only_program_runs() {
  [ "$(marked)" = "$running" ]
}

nothing_runs() {
  [ -z "$(marked)" ]
}

# find_control NAME [WINDOW]: by its caption or spoken name, in that window or the active one, or else in the main
# window, whose title changes. Leaves the window and the control's middle in $place, in pixels of the window's
# inside. (The accessibility bus knows all places, but not every run has one, and asking it takes ten times as long.)
find_control() {
  local window line title x y
  window=${2:-$(xdotool getactivewindow 2>/dev/null)} || return
  title=$(xdotool getwindowname "$window" 2>/dev/null) || return
  if ! line=$(grep -m 1 -F "$title"$'\t'"$1"$'\t' "$scratch/places"); then
    window=$main
    line=$(grep -m 1 -F "Tessavane Graphic Equalizer"$'\t'"$1"$'\t' "$scratch/places") || return
  fi
  IFS=$'\t' read -r _ _ x y <<<"$line"
  [ "$y" -ge 0 ] || y=$((y + $(xdotool getwindowgeometry --shell "$window" | sed -n 's/HEIGHT=//p')))
  place=("$window" "$x" "$y")
}

# click NAME [WINDOW]: that control, once it is there.
click() {
  wait_for find_control "$@"
  click_at "${place[@]}"
}

# click_at WINDOW X Y: in pixels of the window's inside.
click_at() {
  xdotool mousemove --window "$1" "$2" "$3" click 1
}

# drag_band BAND POSITION: a band (0 to 31) that is at 0, in the range of 12 dB.
drag_band() {
  local x=$((55 + 30 * $1))
  xdotool mousemove --window "$main" $x 100 mousedown 1 \
    mousemove --window "$main" $x $((100 + 121 * $2 / 24)) mouseup 1
}

keys() {
  xdotool key --delay 5 "$@"
}

clipboard_holds() {
  timeout 5 xclip -out -selection clipboard 2>/dev/null | cmp -s <(printf %s "$1") -
}

# paste_text TEXT: by way of the clipboard, since not every character has a key. xclip leaves for the background
# before the clipboard is its own.
paste_text() {
  printf %s "$1" | xclip -selection clipboard 2>/dev/null
  wait_for clipboard_holds "$1"
  keys ctrl+v
}

# choose BUTTON TITLE NAME TOOL: answers the file dialog of that title, up to the start of the tool.
choose() {
  rm -f "$folder/$4.begun"
  click "$1"
  wait_for window_is_active "$2"
  paste_text "$3"
  keys Return
  wait_for test -e "$folder/$4.begun"
}

# keep_look NAME: a picture of the screen, as bare colours.
keep_look() {
  import -silent -window root -depth 8 "rgb:$scratch/$1"
}

# still NAME: keeps the look of a screen where all that was done has been painted. No event tells that. But a
# program that has events before it does not sleep, however busy the machine is, and what it paints by a
# timer shows as a difference between two pictures.
still() {
  keep_look "$1" && ! grep -qs '^State:.[RD]' /proc/"$running"/task/*/status && keep_look now &&
    cmp -s "$scratch/$1" "$scratch/now"
}
