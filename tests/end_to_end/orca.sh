#!/usr/bin/env bash
# What a person hears who works with the screen reader Orca: orca.sh PROGRAM
set -euo pipefail
program=$1
. "$(dirname "$0")/../../tools/screen.sh"

launcher=/usr/libexec/at-spi-bus-launcher
need Xvfb openbox xdotool dbus-daemon script orca speech-dispatcher "$launcher"

from=0  # the lines of the log before the last key
heard() { tail -n "+$((from + 1))" "$log" | sed -n "s/.*SPEECH OUTPUT: '\([^']*\)'.*/\1/p" | tr '\n' ' '; }
is_heard() { heard | grep -q -- "$1"; }
has_settled() {
  local lines
  lines=$(wc -l <"$log")
  sleep 0.7
  [ "$(wc -l <"$log")" -eq "$lines" ]
}

# after KEY PATTERN [UNWANTED] presses the key, and waits until speech that matches the pattern is
# heard. Except for the text that a digit replaces, Orca must not speak of the wheel, or of text that
# is deleted or no longer selected.
after() {
  from=$(wc -l <"$log")
  case $1 in
    start) ;;
    [0-9]) type_text "$1" ;;
    # At a user's pace: each key goes to Orca first, and an Alt that comes back after its
    # letter closes the menu again.
    *+*) xdotool keydown "${1%+*}" sleep 0.4 key "${1#*+}" sleep 0.4 keyup "${1%+*}" ;;
    *) press "$1" ;;
  esac
  wait_for 30 is_heard "$2" || { echo "After $1, not $2 is heard but: $(heard)"; exit 1; }
  wait_for 2 has_settled
  [[ $1 != [0-9] ]] || return 0
  is_heard "deleted\|unselected\|Busy\|${3:-unselected}" || return 0
  echo "After $1, this is heard: $(heard)"
  exit 1
}

trap close_screen EXIT
open_screen 1024x640
export XDG_DATA_HOME=$screen_folder/data QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
log=$screen_folder/orca.log
"$launcher" --launch-immediately 2>/dev/null &
screen_processes+=($!)
# Orca does not start where pgrep finds another Orca, be it that of another test or of the person who
# runs the tests: this one shall find none. To a terminal it writes each line at once.
mkdir "$screen_folder/bin"
ln -s /bin/true "$screen_folder/bin/pgrep"
PATH=$screen_folder/bin:$PATH script -qfc 'orca --debug-file /dev/tty -e speech' "$log" \
  </dev/null >/dev/null 2>&1 &
screen_processes+=($!)
wait_for 60 is_heard 'Screen reader on'
# Orca says so before it has asked for any event.
wait_for 60 has_settled
"$program" 2>"$screen_folder/program.log" &
screen_processes+=($!)

after start 'Fundlet.*Start with 1 Jan.*selected.*Enter the year'
after Tab 'Age on 1 Jan.*text.*65.*selected.*Enter your age' 'Start with'
after shift+Tab 'Start with 1 Jan.*text.*selected'
after alt+f 'Save Schedule.*grayed.*Ctrl+S.*File menu'
after Down 'Remember Parameters.*Ctrl+P' 'grayed'
after Escape 'Start with 1 Jan'
after Return 'Initial Year Draw:  $73,325' 'Start with'
after Tab 'Age on 1 Jan.*65.*selected'
after 3 '3'
after Return 'Age must be at least 52 years old.*OK'
after Return 'Fundlet.*Age on 1 Jan.*52.*selected'
after ctrl+e 'Fundlet Help.*Fundlet Help.*text.*Fundlet'
after Down 'Version [0-9]'
after Return 'Fundlet.*Age on 1 Jan.*52.*selected'
after ctrl+2 'Life Expectancy.*28.*selected'
