#!/usr/bin/env bash
# The running program as a screen reader meets it: accessibility.sh PROGRAM
set -euo pipefail
program=$1
here=$(dirname "$0")
. "$here/../../tools/screen.sh"

launcher=/usr/libexec/at-spi-bus-launcher
need Xvfb openbox xdotool dbus-daemon "$launcher"
/usr/bin/python3 -c 'import pyatspi' 2>/dev/null || skip 'pyatspi is not installed.'

trap close_screen EXIT
open_screen 1024x640
"$launcher" --launch-immediately 2>/dev/null &
screen_processes+=($!)
wait_for 20 dbus-send --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
"$program" &
process=$!
screen_processes+=("$process")
timeout 240 /usr/bin/python3 "$here/accessibility.py" "$program"
wait "$process"
