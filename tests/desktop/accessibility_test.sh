#!/bin/bash
# The whole work by keys alone, as one does it who hears the program: on X11, or on Wayland where the second
# argument says so.
. "$(dirname "$0")/driver.sh"

heard() { grep -sqxF "$1" "$scratch/heard"; }
progress_heard() { grep -sq '^accessible-value 0 progress bar|Progress||[1-9]' "$scratch/heard"; }
focus() { grep '^focused 1' "$scratch/heard" | tail -n 1 | cut -d'|' -f2; }
focus_left() { [ "$(focus)" != "$1" ]; }
has_focus() { [ "$(focus)" = "$1" ]; }
answer() { # NAME: the file dialog.
  wait_for has_focus "File name:"
  xdotool type --delay 5 "$1"
  keys Return
}
press() { # CONTROL KEY...: with the focus there, by as many Tabs as it takes.
  until name=$(focus) && [ "$name" = "$1" ]; do keys Tab && wait_for focus_left "$name"; done
  keys "${@:2}"
}
close_window_of() { press Close Return && wait_for has_focus "$1"; } # BUTTON: has opened it.

start_desktop
real_tool ffprobe
tool ffmpeg <<<"exec $(command -v ffmpeg) -re \"\$@\""
ffmpeg -v error -f lavfi -i anoisesrc=d=4:seed=1 "$scratch/noise.wav"
env "$mark" dbus-daemon --session --nofork --print-address=3 3>"$scratch/bus" >/dev/null 2>&1 & disown
wait_for test -s "$scratch/bus"
surroundings=("DBUS_SESSION_BUS_ADDRESS=$(cat "$scratch/bus")" QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1)
env "$mark" "${surroundings[@]}" /usr/bin/python3 -W ignore "$(dirname "$0")/spoken.py" >"$scratch/heard" 2>/dev/null & disown
wait_for heard listening
if [ "${2-}" = wayland ]; then
  in_background weston --backend=x11-backend.so --use-pixman --width=1280 --height=800 --idle-time=0 \
    --socket=wayland-test
  wait_for test -S "$XDG_RUNTIME_DIR/wayland-test"
  surroundings+=(WAYLAND_DISPLAY=wayland-test QT_QPA_PLATFORM=wayland)
fi
run_program "${surroundings[@]}"
press "Open Source" space
answer "$scratch/noise.wav"
waiting="Preview Audio, Save As, Save Preset, EQ String > Clipboard"
wait_for heard "showing 1 notification|Source file $scratch/noise.wav, $waiting|"
# In the order of the Tab key, so that it goes around once.
press 31.5hz Up Up
wait_for heard "accessible-value 0 slider|31.5hz|dB|2"
wait_for heard "accessible-name 0 label|Selected Frequency Value: 2db|"
press "No Preset" Down
wait_for heard "showing 1 notification|Preset Settings: 1|"
wait_for heard "accessible-value 0 slider|19hz|dB|-1" # What a preset that was never saved sets.
press "Save As" space
answer "$folder/out.wav"
wait_for progress_heard # Whichever value: on a busy machine the bar has gone on before it is asked.
close_window_of "Save As"
press "FFmpeg EQ String" space
wait_for heard "FFmpeg Equalizer String: text|Filter chain|"
close_window_of "FFmpeg EQ String"
press "EQ String > Clipboard" space
wait_for heard "showing 1 notification|Data On Clipboard|"
for control in "slider|Gain|%|100" "radio button|plus or minus 12 dB|"; do
  heard "Tessavane Graphic Equalizer: $control" || fail "the main window was told without $control"
done
names=$(grep '^[^|]*: ' "$scratch/heard" | cut -d'|' -f1,2 | sort)
expect "controls without a name of their own" "" "$(grep '|$' <<<"$names"; uniq -d <<<"$names")"
press Exit space
wait_for program_has_ended
