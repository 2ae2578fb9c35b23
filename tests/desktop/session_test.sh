#!/bin/bash
# One whole session, from the source to the rendered file, by mouse and keyboard.
. "$(dirname "$0")/driver.sh"

source_file="$scratch/my song.wav"
target="$folder/louder song.wav"
# Band 0 to 31 as the session leaves them, in the range of 6 dB: a cut is a high position.
positions=(-6 -4 3 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 -5 2 0 0 0 0 0 0 0 0 0 0 0 -1)
preset_line="$(printf '%s:' "${positions[@]}")LowCut=0:Range=1:BandWidth=003:AudioGain=140"
chain="equalizer=f=1:width_type=o:width=25:g=-5,$(
  chain 3 -0 -0 -0 -0 -0 -0 -0 -0 -0 -0 -0 -0 -0 -0 -0 5 -2 -0 -0 -0 -0 -0 -0 -0 -0 -0 -0 -0 1)"

open_the_source() {
  ffmpeg -v error -f lavfi -i anoisesrc=d=4:seed=1 "$source_file"
  click "EQ String > Clipboard" # Without a source it does nothing.
  open_source "$source_file"
  wait_for only_program_runs
}

set_everything() {
  drag_band 7 0 -12 12
  click "+/- 6 db" # Puts all bands back to 0.
  click "Low Cut On"
  click "Preset 3" # Not stored yet: moves band 0 to 1 and nothing else.
  drag_band 0 1 -6 6
  drag_band 1 0 -4 6
  drag_band 2 0 3 6
  click_at "$main" "$(band_x 18)" "$(band_y 0 6)"
  keys Prior Tab Down Down # A page up is 5 dB; the next band, 2 dB down.
  click Bandwidth # Jumps towards the mouse.
  keys Home Right Right
  click "[ + ] Increase"
  click "[ + ] Increase"
  click_at "$main" "$(band_x 31)" "$(band_y 0 6)"
  keys Up
  leave_mouse
}

# bar BAND DB COLOUR: the indicator shows that colour half way between the middle and its end.
bar() {
  expect "colour of the bar of band $1" "$3" "$(pixel $((38 + 30 * $1)) $((100 - $2 * 5)))"
}

check_the_picture() {
  local face
  wait_for pixel_is 920 249 ffff80 # The gain bar, right of the middle, is yellow at 140 %.
  bar 0 6 ff0000
  bar 1 4 ffff80
  bar 2 -3 80ff80
  bar 18 5 ffff80
  bar 19 -2 80ff80
  face=$(pixel 500 162)
  expect "no bar below a raised band" "$face" "$(pixel 38 110)"
  pixel_is 1096 64 ffffff && fail "preset 3 has no dot"
  pixel_is 1032 40 ffffff || fail "two presets have a dot"
}

pixel_is() {
  [ "$(pixel "$1" "$2")" = "$3" ]
}

keep_in_preset() {
  click "Save Preset"
  wait_for test -s "$folder/AppPresets.ini"
  printf '[Preset#3]\r\nFrequency=%s\r\n' "$preset_line" >"$scratch/preset"
  expect_file "preset file" "$scratch/preset" "$folder/AppPresets.ini"
  click "Preset 3"
  leave_mouse
  wait_for still before
}

move_everything() {
  click "+/- 12 db"
  click "Low Cut Off"
  click "Decrease [ - ]"
  drag_band 0 0 12 12 # Takes the blue from the gain label, too.
  drag_band 19 0 -9 12 # The bar of a band that never moved would not come back.
  click Bandwidth
  keys End
  leave_mouse
  wait_for looks_unlike before
}

load_the_preset() {
  click "Preset 3"
  leave_mouse
  wait_for looks_like before
}

copy_the_string() {
  click "EQ String > Clipboard"
  wait_for clipboard_holds "$chain"
}

render() {
  save_as "$target"
  arguments -y -i "$source_file" -af "volume=1.4,$chain" "$target"
  expect_file "arguments of ffmpeg" "$scratch/arguments" "$folder/ffmpeg.args"
  wait_for only_program_runs
  ffmpeg -v error -i "$source_file" -af "volume=1.4,$chain" "$scratch/by hand.wav"
  cmp -s "$scratch/by hand.wav" "$target" || fail "the rendered file is not the one made by hand"
  close_saving
}

start_desktop
/usr/bin/python3 "$(dirname "$0")/clipboard_manager.py" >"$scratch/handed over" 2>/dev/null &
started+=($!)
disown
tool ffprobe <<<"env >\"\$0.env\"; exec $(command -v ffprobe) \"\$@\""
real_tool ffmpeg
start_program QT_QPA_PLATFORMTHEME=qt6ct
open_the_source
grep -q libqt6ct "/proc/$running/maps" && fail "the theme of the desktop is loaded"
expect "the tools' theme" QT_QPA_PLATFORMTHEME=qt6ct "$(grep ^QT_QPA_PLATFORMTHEME= "$folder/ffprobe.env")"
set_everything
check_the_picture
keep_in_preset
move_everything
load_the_preset
copy_the_string
render
copy_the_string
click Exit
program_has_ended_well
expect "what the clipboard manager was handed" "$chain" "$(cat "$scratch/handed over")"
expect "what still runs" "" "$(marked)"
