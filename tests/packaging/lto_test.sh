#!/bin/bash
# A program that was optimized when it was linked shows its window.
. "$(dirname "$0")/../../docs/desktop.sh"

start_desktop
start_program
click Exit
wait_for program_has_ended
