# shellcheck shell=bash
# For tests that drive the real program as a person would: on a desktop of their own, with mouse and keyboard,
# seeing windows, pictures, files and the clipboard alone. A test sources this file and passes the program on.
set -u

program=$(realpath "$1")
scratch=$(realpath "$(mktemp -d)")
folder="$scratch/app"
started=()
main=0
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

# fail WHAT [EXPECTED GOT]: ends the test and leaves a picture of the screen in the current folder.
fail() {
  local picture
  picture="$PWD/$(basename "$0" .sh).png"
  echo "FAILED: $1"
  [ $# -lt 2 ] || printf 'expected: %s\n     got: %s\n' "$2" "$3"
  import -silent -window root "$picture" 2>/dev/null && echo "picture: $picture"
  exit 1
}

# wait_for CONDITION...: runs the command until it succeeds; fails the test after 20 seconds.
wait_for() {
  local limit=$((SECONDS + 20))
  until "$@"; do
    [ "$SECONDS" -lt "$limit" ] || fail "waited in vain for: $*"
    sleep 0.03
  done
}

expect() {
  [ "$2" = "$3" ] || fail "$1" "$2" "$3"
}

# expect_file WHAT EXPECTED GOT: two files; zero bytes between arguments show as lines.
expect_file() {
  cmp -s "$2" "$3" || fail "$1" "$(head -c 4000 "$2" | tr '\0' '\n')" "$(head -c 4000 "$3" 2>&1 | tr '\0' '\n')"
}

start_desktop() {
  local needed
  for needed in Xvfb openbox xdotool xprop xwininfo xclip import compare ffmpeg ffprobe; do
    command -v "$needed" >/dev/null || fail "$needed is not installed"
  done
  Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$scratch/display" 2>/dev/null &
  started+=($!)
  disown
  wait_for test -s "$scratch/display"
  DISPLAY=:$(cat "$scratch/display")
  HOME=$scratch/home XDG_RUNTIME_DIR=$scratch/home
  export DISPLAY HOME XDG_RUNTIME_DIR
  mkdir -m 700 "$HOME"
  window_manager_settings >"$scratch/openbox.xml"
  openbox --config-file "$scratch/openbox.xml" >/dev/null 2>&1 &
  started+=($!)
  disown
  wait_for desktop_is_managed
}

# No click inside a window concerns the window manager: one that looks at each first holds the mouse events of
# a fast hand up, and hands them on with places where the mouse only got to later.
window_manager_settings() {
  cat <<'END'
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew></focus>
  <mouse>
    <context name="Close">
      <mousebind button="Left" action="Click"><action name="Close"/></mousebind>
    </context>
    <context name="Iconify">
      <mousebind button="Left" action="Click"><action name="Iconify"/></mousebind>
    </context>
  </mouse>
</openbox_config>
END
}

desktop_is_managed() {
  xprop -root _NET_SUPPORTING_WM_CHECK | grep -q '#'
}

# tool NAME <SCRIPT: puts a tool beside the program that keeps its arguments, each ended by a zero byte, and
# then does what the script says.
tool() {
  mkdir -p "$folder"
  # shellcheck disable=SC2016
  { printf '#!/bin/bash\nprintf "%%s\\0" "$@" >"$0.part"\nmv "$0.part" "$0.args"\n' && cat; } >"$folder/$1"
  chmod +x "$folder/$1"
}

real_tool() {
  tool "$1" <<<"exec $(command -v "$1") \"\$@\""
}

# run_program [ENVIRONMENT...]: by a link in $folder, where it then finds its tools.
run_program() {
  mkdir -p "$folder"
  ln -sf "$program" "$folder/tessavane"
  env -u QT_QPA_PLATFORM -u QT_SCALE_FACTOR -u WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS=none: "$mark" "$@" \
    "$folder/tessavane" 2>"$scratch/errors" &
  running=$!
  disown
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

# Where the boxes of the main window begin, in twips, and the pixels of their border.
declare -A boxes=(
  [bands]="240 240 1" [strip]="240 2640 1" [panel]="15240 240 1" [range]="15240 1560 1" [lowcut]="15240 2280 1"
)
# Box, left, top, width and height in twips.
declare -A controls=(
  [Open Source]="strip 240 360 1695 375" [Save As]="strip 4200 360 1815 375"
  [Save Preset]="strip 2040 840 2055 375" [EQ String > Clipboard]="strip 4080 840 1935 375"
  [Decrease]="strip 10560 240 1215 255" [Increase]="strip 13320 240 1095 255"
  [12 db]="range 120 0 300 255" [6 db]="range 120 240 300 255"
  [Low Cut On]="lowcut 120 0 300 255" [Low Cut Off]="lowcut 120 240 300 255"
  [Preset 3]="panel 1080 600 300 210" [Exit]="panel 120 3240 1575 375"
)

# click CONTROL: of the main window, by its middle.
click() {
  local box left top width height x y border
  read -r box left top width height <<<"${controls[$1]}"
  read -r x y border <<<"${boxes[$box]}"
  click_at "$main" $(((x + left + width / 2) / 15 + border)) $(((y + top + height / 2) / 15 + border))
}

# click_at WINDOW X Y: in pixels of the window's inside.
click_at() {
  xdotool mousemove --window "$1" "$2" "$3" click 1
}

# Bare ground of the main window, where the mouse lights up nothing.
leave_mouse() {
  xdotool mousemove --window "$main" 560 325
}

# The thumb of a band (0 to 31) at a position of its slider, in a range of -LIMIT to LIMIT.
band_x() { echo $((55 + 30 * $1)); }
band_y() { echo $((100 + 121 * $1 / (2 * $2))); }

# drag_band BAND FROM TO LIMIT
drag_band() {
  local x
  x=$(band_x "$1")
  xdotool mousemove --window "$main" "$x" "$(band_y "$2" "$4")" mousedown 1 \
    mousemove --window "$main" "$x" "$((($(band_y "$2" "$4") + $(band_y "$3" "$4")) / 2))" \
    mousemove --window "$main" "$x" "$(band_y "$3" "$4")" mouseup 1
}

keys() {
  xdotool key --delay 5 "$@"
}

# choose TITLE NAME: answers the file dialog of that title. The name comes by way of the clipboard, since not
# every character has a key.
choose() {
  wait_for window_is_active "$1"
  printf %s "$2" | xclip -selection clipboard 2>/dev/null
  keys ctrl+v Return
  wait_for no_window "$1"
}

open_source() {
  rm -f "$folder/ffprobe.args"
  click "Open Source"
  choose "Open Source File" "$1"
  wait_for test -e "$folder/ffprobe.args"
}

# Up to the start of ffmpeg.
save_as() {
  rm -f "$folder/ffmpeg.args"
  click "Save As"
  choose "Save As" "$1"
  wait_for test -e "$folder/ffmpeg.args"
}

# The progress window, by its button.
close_saving() {
  wait_for window_is_active "Saving"
  click_at "$window" 384 84
  wait_for no_window "Saving"
}

# shot NAME: a picture of the main window as the screen shows it.
shot() {
  import -silent -window "$main" "$scratch/$1.png"
}

# The main window looks as in that picture by now.
looks_like() {
  shot now && compare -metric AE "$scratch/$1.png" "$scratch/now.png" null: &>/dev/null
}

looks_unlike() {
  ! looks_like "$1"
}

# pixel X Y: its colour on the main window, as red, green and blue in hexadecimal digits.
pixel() {
  import -silent -window "$main" -crop "1x1+$1+$2" -depth 8 rgb:- | od -An -tx1 | tr -d ' '
}

frequencies=(19 20 25 31.5 33 40 50 63 75 80 125 160 250 313 400 450 500 630 1000 1250 1600 2000 2500 3150
  4000 5000 6300 8000 10000 12500 16000 20000)

# chain WIDTH GAIN...: the filters of the highest bands, one for each gain, joined by commas.
chain() {
  local width=$1 first i text=
  shift
  first=$((32 - $#))
  for ((i = first; i < 32; i++)); do
    text+=",equalizer=f=${frequencies[i]}:width_type=o:width=$width:g=$1"
    shift
  done
  echo "${text#,}"
}

# arguments ARGUMENT...: as a tool keeps them, in the file $scratch/arguments.
arguments() {
  printf '%s\0' "$@" >"$scratch/arguments"
}
