#!/usr/bin/env bash
# The running program talks to its display and to the session bus alone: no_network.sh PROGRAM
set -euo pipefail
program=$1
here=$(dirname "$0")
. "$here/../../tools/screen.sh"

skip() {
  echo "Skipped: $*"
  exit 77
}

wrong() {
  echo "no_network: $*" >&2
  exit 1
}

for command in Xvfb openbox xdotool strace dbus-daemon; do
  command -v "$command" >/dev/null || skip "$command is not installed."
done
strace -o /dev/null true 2>/dev/null || skip 'no process may be watched here.'

trap close_screen EXIT
open_screen 1024x640 || wrong 'the virtual screen did not open'
bus=$screen_folder/bus
dbus-daemon --session --nofork --nopidfile --address="unix:path=${bus// /%20}" 2>"$screen_folder/bus.log" &
screen_processes+=($!)
wait_for 20 test -S "$bus" || wrong 'the session bus did not start'
export DBUS_SESSION_BUS_ADDRESS=unix:path=${bus// /%20}

calls=$screen_folder/calls
# -D: the program keeps the process that is started here.
strace -D -f -s 200 -e trace=socket,connect -o "$calls" "$program" &
process=$!
screen_processes+=("$process")
wait_for 60 other_window_of_is_active "$process" none || wrong 'the window did not open'
main=$(active_window)
press Return
press F1
wait_for 20 other_window_of_is_active "$process" "$main" || wrong 'the Help window did not open'
press Return
wait_for 20 is_active "$main" || wrong 'the Help window stayed'
press ctrl+s
wait_for 20 other_window_of_is_active "$process" "$main" || wrong 'no save dialog'
type_text "$screen_folder/schedule.txt"
press Return
wait_for 20 test -s "$screen_folder/schedule.txt" || wrong 'no schedule'
press ctrl+q
wait "$process" || wrong "exit status $?"
wait_for 20 grep -q "^$process .*exited with 0" "$calls" || wrong 'the end was not seen'

allowed="sun_path=(@?\"/tmp/.X11-unix/X${DISPLAY#:}\"|\"$bus\")"
grep -q "connect(.*$bus" "$calls" || wrong 'even the session bus was not seen'
others=$(grep -E '(socket|connect)\(' "$calls" |
  grep -vE "socket\(AF_UNIX,|connect\([0-9]+, \{sa_family=AF_UNIX, $allowed") || true
[ -z "$others" ] || wrong "these are for others:"$'\n'"$others"
