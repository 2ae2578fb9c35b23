#!/bin/bash
# Whatever ends the program in the middle of a render, it is gone at once and the tool finishes the file. In a
# preview or a probe, where all other input waits for the tool, closing the window does so, too.
. "$(dirname "$0")/driver.sh"

source_file="$scratch/noise.wav"
target="$folder/out.wav"

end_program() {
  case $1 in
    Exit) click_at "${exit_button[@]}" ;;
    close) close_window ;;
    TERM) kill "$running" ;;
    server) kill "${started[0]}" ;;
  esac
}

close_window() {
  xdotool windowactivate --sync "$main" key alt+F4
}

# FFmpeg writes blocks of 32 KB, about a third of a second each here.
writes_the_middle() {
  [ "$(stat -c %s "$target")" -gt 50000 ]
}

# With a point, although the program runs in a language that writes a comma.
minimised_window_counts() {
  xprop -id "$main" WM_NAME | grep -qE '"Velm:  [0-9]{2}\.[0-9]{2}%"'
}

start_desktop
ffmpeg -v error -f lavfi -i anoisesrc=d=4:seed=1 "$source_file"

for running_tool in ffprobe ffplay; do
  real_tool ffprobe
  # shellcheck disable=SC2016
  tool "$running_tool" <<<'until [ -e "$0.stop" ]; do sleep 0.1; done'
  start_program
  choose "Open Source" "Open Source File" "$source_file" ffprobe
  [ "$running_tool" = ffprobe ] || click "Preview Audio"
  wait_for test -e "$folder/$running_tool.begun"
  close_window
  wait_for program_has_ended
  nothing_runs && fail "the program has waited for $running_tool"
  touch "$folder/$running_tool.stop"
  wait_for nothing_runs
done

in_background bash -c "exec /usr/bin/python3 '$(dirname "$0")/clipboard_manager.py' >'$scratch/handed over'"
real_tool ffprobe
mkfifo "$scratch/begin"
tool ffmpeg <<<": <'$scratch/begin'; exec $(command -v ffmpeg) -re \"\$@\""
for ending in close Exit TERM server; do
  # Were the theme of the desktop loaded, its file dialogs could crash.
  start_program LC_ALL=de_DE.UTF-8 QT_QPA_PLATFORMTHEME=qt6ct
  grep -q libqt6ct "/proc/$running/maps" && fail "the theme of the desktop is loaded"
  choose "Open Source" "Open Source File" "$source_file" ffprobe
  drag_band 18 -6
  wait_for find_control Exit
  exit_button=("${place[@]}") # Looked up now, since the render does not wait for that.
  choose "Save As" "Save As" "$target" ffmpeg
  click_at "$main" 320 245 # The left half of "EQ String > Clipboard", which the progress window leaves free.
  [ "$ending" != TERM ] || xdotool windowminimize "$main"
  : >"$scratch/begin"
  wait_for writes_the_middle
  [ "$ending" != TERM ] || wait_for minimised_window_counts
  # However busy the machine, the render is not over first. A click is served with the next piece of its output.
  [ "$ending" = Exit ] || signal_tool STOP
  end_program "$ending"
  wait_for program_has_ended
  [ -s "$scratch/handed over" ] || fail "no clipboard manager was handed the text"
  nothing_runs && fail "the render was over before the program by $ending"
  signal_tool CONT
  wait_for nothing_runs
  [ -e "$scratch/by hand.wav" ] ||
    ffmpeg -v error -i "$source_file" -af "volume=1,$(cat "$scratch/handed over")" "$scratch/by hand.wav"
  cmp "$scratch/by hand.wav" "$target" || fail "the file is not complete after $ending"
done
