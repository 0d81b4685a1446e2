#!/usr/bin/env bash
# The built program on a virtual screen, used by typed keys alone:
# [SESSION=wayland] end_to_end.sh PROGRAM [PICTURES]
# Leaves the pictures of the README in the folder PICTURES, where one is named.
set -euo pipefail
program=$1
pictures=${2:-}
. "$(dirname "$0")/../../tools/screen.sh"

session=${SESSION:-x11}
need Xvfb openbox xdotool import
[ "$session" = x11 ] || need weston

expect() { # WHAT EXPECTED FOUND
  [ "$2" = "$3" ] || fail "$1"$'\n'"  expected: $2"$'\n'"  found:    $3"
}

# Starts the program and waits for its window. Sets process, main, and left and top, the place of the
# content in the window.
start_program() {
  "$program" &
  process=$!
  screen_processes+=("$process")
  wait_for 60 other_window_of_is_active "$process" none || fail 'the window did not open'
  main=$(active_window)
  local x y width height
  read -r x y width height < <(window_place "$main")
  left=$(((width - 740) / 2))
  expect 'width of the border' "$([ "$session" = x11 ] && echo 0 || echo 1)" "$left"
  top=$((height - 220 - left))
}

bytes_of() { od -An -v -tx1 "$1" | tr -d ' \n'; }
parameters_are() { [ "$(bytes_of "$parameters")" = "$1" ]; }

expect_parameters() { # WHEN BYTES
  wait_for 20 parameters_are "$2" || expect "parameters file $1" "$2" "$(bytes_of "$parameters")"
}

colour_at() {
  window_picture "$main" $((left + $1)) $((top + $2)) 1 1 txt:- | grep -o '#[0-9A-F]\{6\}'
}
result_picture() { window_picture "$main" $((left + 490)) $((top + 137)) 212 20 rgb:- | cksum; }
result_picture_is() { [ "$(result_picture)" = "$1" ]; }
result_picture_is_not() { ! result_picture_is "$1"; }

# Saves the schedule by the shortcut and the dialog into a new file of that name.
save_schedule() {
  press ctrl+s
  wait_for 20 other_window_of_is_active "$process" "$main" || fail 'no save dialog'
  type_text "$folder/$1"
  press Return
  wait_for 20 is_active "$main" || fail 'the save dialog stayed'
  wait_for 20 test -s "$folder/$1" || fail "no schedule in $1"
}

picture() { # NAME
  [ -z "$pictures" ] && return
  sleep 0.5
  import -silent -frame -window "$(active_window)" "$pictures/$1"
}

# The mouse on a desktop where a click reaches a window before it has become the active one.
work_with_the_mouse() {
  local x y width rest help
  move_window "$main" 0 0
  press F1
  wait_for 20 other_window_of_is_active "$process" "$main" || fail 'F1 opened no help'
  help=$(active_window)
  move_window "$help" 750 100

  click_in "$main" $((left + 19)) $((top - 11))
  press Down Down Return ctrl+a
  expect_parameters 'after Remember of the window behind the help' "07db3c04$remembered"
  type_text 61
  press ctrl+p
  expect_parameters 'after typing when the menu has closed' "07db3d04$remembered"

  click_in "$help" 100 300
  wait_for 20 is_active "$help" || fail 'a click did not activate the help'
  click_in "$main" $((left + 145)) $((top + 32))
  type_text 2015
  press ctrl+p
  expect_parameters 'after a click into another field than the refused one' "07df3d04$remembered"

  press super+shift+m
  wait_for 20 is_wide "$main" || fail 'the desktop could not maximise the window'
  expect 'colour beside the content' '#CCFFCC' "$(colour_at 900 400)"
  press Tab
  type_text 60
  press super+shift+m ctrl+p
  expect_parameters 'after typing in the maximised window' "07df3c04$remembered"
  read -r x y width rest < <(window_place "$main")
  click_in "$main" $((width - 17)) 17
}
is_wide() { [ "$(window_place "$1" | awk '{ print $3 }')" -gt 1000 ]; }

trap close_screen EXIT
if [ "$session" = x11 ]; then open_screen 1024x640; else open_wayland 1024x640; fi
folder=$screen_folder
parameters=$XDG_CONFIG_HOME/Fundlet.Preferences
tab=$'\t'

! ldd "$program" | grep -iE 'network|curl|ssl|http' || fail 'linked with what talks to a network'

start_program
expect 'title' Fundlet "$(window_title "$main")"
expect_parameters 'after the first start' "$(date +%Y | xargs printf %04x)"411b3f947ae147ae147b412e848000000000\
3fa999999999999a40d388000000000040f86a0000000000
expect 'colour of the window' '#CCFFCC' "$(colour_at 5 210)"
nothing_drawn=$(result_picture)

press Return
wait_for 20 result_picture_is_not "$nothing_drawn" || fail 'no result on the screen'
picture window.png

press ctrl+e
wait_for 20 other_window_of_is_active "$process" "$main" || fail 'control-E opened no help'
picture help.png
press Return
wait_for 20 is_active "$main" || fail 'Return did not close the help'

press ctrl+r
wait_for 20 result_picture_is "$nothing_drawn" || fail 'recalling did not clear the result'
type_fields 2010 70 4 2.5 500,000 5 20,000 100,000
press Return
save_schedule typed.txt
expect 'last year of the typed plan' \
  "2013${tab}73${tab}211,984${tab}141,577${tab}100,000${tab}74" "$(sed -n 14p "$folder/typed.txt")"
if command -v soffice >/dev/null; then
  LC_ALL=C.UTF-8 soffice "-env:UserInstallation=file://$folder/profile" --headless \
    --infilter='Text - txt - csv (StarCalc):9,34,76,1' --outdir "$folder" --convert-to \
    'csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,false' "$folder/typed.txt" >/dev/null
  diff <(tail -n 4 "$folder/typed.txt" | tr -d , | tr '\t' ,) <(tail -n 4 "$folder/typed.csv") ||
    fail 'the numbers in a spreadsheet program'
fi
press ctrl+p
remembered=3f9999999999999a411e8480000000003fa999999999999a40d388000000000040f86a0000000000
expect_parameters 'after remembering' "07da4604$remembered"

press ctrl+r
type_fields 2011
type_text 30
press Return
wait_for 20 other_window_of_is_active "$process" "$main" || fail 'no alert for the age of 30'
press Return
wait_for 20 is_active "$main" || fail 'Return did not dismiss the alert'
type_text 60
press ctrl+p
expect_parameters 'after typing over the refused age' "07db3c04$remembered"

if [ "$session" = x11 ]; then press alt+F4; else work_with_the_mouse; fi
wait "$process" || fail "exit status $?"

start_program
type_text 2012
press Return
wait_for 20 result_picture_is_not "$nothing_drawn" || fail 'no result after a second start'
save_schedule again.txt
expect 'first year after a second start' \
  "2012${tab}60${tab}500,000${tab}131,468${tab}411,522${tab}61" \
  "$(sed -n 11p "$folder/again.txt")"
press ctrl+q
wait "$process" || fail "exit status $?"
