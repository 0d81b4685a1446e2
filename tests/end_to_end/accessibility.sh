#!/usr/bin/env bash
# The running program as a screen reader meets it: accessibility.sh PROGRAM
set -euo pipefail
program=$1
here=$(dirname "$0")
. "$here/../../tools/screen.sh"

launcher=/usr/libexec/at-spi-bus-launcher
for command in Xvfb openbox xdotool dbus-run-session "$launcher"; do
  command -v "$command" >/dev/null && continue
  echo "Skipped: $command is not installed."
  exit 77
done
/usr/bin/python3 -c 'import pyatspi' 2>/dev/null || { echo 'Skipped: no pyatspi.'; exit 77; }

trap close_screen EXIT
open_screen 1024x640
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
# shellcheck disable=SC2016  # expanded by the inner shell
timeout 120 dbus-run-session -- bash -euc '
  "$1" --launch-immediately 2>/dev/null & sleep 1
  "$2" & program=$!
  /usr/bin/python3 "$3"
  wait "$program"' _ "$launcher" "$program" "$here/accessibility.py"
