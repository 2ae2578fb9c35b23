#!/bin/bash
# The package made of the build folder given satisfies the validators. Unpacked, its launcher gives an ordinary
# user a folder, in which the program measures a source and keeps a preset.
. "$(dirname "$0")/../desktop/driver.sh"
places="$program/bin/places"

root="$scratch/root"
entry="$root/usr/share/applications/tessavane.desktop"
home="$scratch/Zoë's häuslicher Ördner"
user=(env -u QT_QPA_PLATFORM -u QT_SCALE_FACTOR -u WAYLAND_DISPLAY "$mark" DBUS_SESSION_BUS_ADDRESS=none:
  HOME="$home" XDG_RUNTIME_DIR="$home")
[ "$EUID" != 0 ] || user=(setpriv --reuid=nobody --regid=nogroup --clear-groups "${user[@]}")

# says STATUS WORDS COMMAND...
says() {
  expect "what ${*:3} says" "$2status $1" "$(LC_ALL=C.UTF-8 "${@:3}" 2>&1; echo "status $?")"
}

# start_installed ENVIRONMENT...: up to its window.
start_installed() {
  "${user[@]}" "$@" "$root/usr/bin/tessavane" 2>"$scratch/errors" &
  running=$!
  disown
  wait_for window_is_active "Tessavane Graphic Equalizer"
  main=$window
}

cpack --config "$program/CPackConfig.cmake" -B "$scratch/package" &>"$scratch/log" || fail "$(cat "$scratch/log")"
# What lintian knows of the metainfo it asks of appstreamcli, which is asked below.
says 0 '' lintian --dont-check-part appstream-metadata --allow-root "$scratch"/package/*.deb
dpkg-deb -x "$scratch"/package/*.deb "$root"
says 0 '' desktop-file-validate "$entry"
# Newer validators want a homepage and a developer's name. There is neither, and none is made up.
validate=(appstreamcli validate-tree --no-net --strict "$root")
"${validate[@]}" >"$scratch/log" ||
  "${validate[@]}" --override=url-homepage-missing=pedantic,developer-info-missing=pedantic >"$scratch/log" 2>&1 ||
  fail "$(cat "$scratch/log")"

start_desktop
for name in ffprobe ffmpeg; do real_tool $name; done
mkdir "$home" "$scratch/few"
for name in readlink realpath mkdir ln mv; do ln -s "$(command -v $name)" "$scratch/few"; done
chmod 711 "$scratch"
[ "$EUID" != 0 ] || chown nobody "$home"
says 1 $'tessavane: there is no home folder: HOME is not set\ntessavane: cannot make a temporary folder\n' \
  "${user[@]}" HOME='' TMPDIR=/proc "$root/usr/bin/tessavane"

# The PATH has no ffplay, which keeps nobody from starting. A relative XDG_DATA_HOME does not count.
start_installed PATH="$folder:$scratch/few" XDG_DATA_HOME=data
folder="$home/.local/share/tessavane"
printf -v links '%s\n' "$scratch"/app/ff{mpeg,probe} "$root/usr/lib/tessavane/tessavane"
says 0 "$links" readlink "$folder"/*
says 0 "StartupWMClass=$(xprop -id "$main" WM_CLASS | cut -d'"' -f4)"$'\n' grep ^StartupWMClass "$entry"

"${user[@]}" ffmpeg -v error -f lavfi -i anoisesrc=d=1:seed=1 "$home/été à 5.wav"
choose "Open Source" "Open Source File" "$home/été à 5.wav" ffprobe
wait_for only_program_runs
click "Preset 3"
drag_band 18 -5
click "Save Preset"
wait_for grep -qs '^Frequency=.*:-5:' "$folder/AppPresets.ini"
click Exit
wait_for nothing_runs

# Where that folder cannot be used it starts all the same, in one for this run, with the presets that there are.
mkdir -m 777 "$scratch/temporary"
chmod 500 "$folder"
start_installed TMPDIR="$scratch/temporary"
temporary=$(echo "$scratch"/temporary/tessavane.*)
says 0 $'700\n' stat -c %a "$temporary"
says 0 '' cmp "$folder/AppPresets.ini" "$temporary/AppPresets.ini"
says 0 "tessavane: presets will not last: they are in $temporary"$'\n' grep 'will not last' "$scratch/errors"
click Exit
wait_for nothing_runs
chmod 700 "$folder"
