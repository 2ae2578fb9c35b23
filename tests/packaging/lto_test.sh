#!/bin/bash
# A program that was optimized when it was linked shows its window.
. "$(dirname "$0")/../desktop/driver.sh"
places="$(dirname "$program")/../../bin/places"

start_desktop
start_program
click Exit
wait_for program_has_ended
