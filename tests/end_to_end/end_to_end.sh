#!/usr/bin/env bash
# The built program on a virtual screen, used by typed keys alone:
# [SESSION=wayland|windows] end_to_end.sh PROGRAM [PICTURES]
# Leaves the pictures of the README in the folder PICTURES, where one is named.
set -euo pipefail
program=$1
pictures=${2:-}
here=$(dirname "$0")
. "$here/../../tools/screen.sh"

session=${SESSION:-x11}
need Xvfb openbox xdotool import
expect() { # WHAT EXPECTED FOUND
  [ "$2" = "$3" ] || fail "$1"$'\n'"  expected: $2"$'\n'"  found:    $3"
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

# The expected schedule is that of a plan of four years from 2010 on.
schedule_is_saved() { sed "s/\$/$line_end/" "$here/../files/schedule.txt" | cmp -s - "$folder/typed.txt"; }

# Saves the schedule in place of another file.
save_schedule() {
  local dialog
  echo 'What stood there before.' >"$folder/typed.txt"
  press ctrl+s
  wait_for 20 other_window_of_is_active "$process" "$main" || fail 'no save dialog'
  dialog=$(active_window)
  # The save dialog of wine, other than that of Windows, does not select the name that it proposes.
  [ "$session" != windows ] || press Home shift+End
  type_text "$(typed_path "$folder/typed.txt")"
  press Return
  wait_for 20 other_window_of_is_active "$process" "$dialog" || fail 'a file is replaced unasked'
  press alt+y
  # Then wine gives the keyboard to no window. Windows gives it to the one below.
  if [ "$session" = windows ]; then
    wait_for 20 eval '! xdotool getwindowname "$dialog"' || fail 'the save dialog stayed'
    xdotool windowactivate "$main"
  fi
  wait_for 20 is_active "$main" || fail 'the save dialog stayed'
  wait_for 20 schedule_is_saved || fail "the saved schedule:"$'\n'"$(cat "$folder/typed.txt")"
}

picture() { # NAME
  [ -z "$pictures" ] && return
  sleep 0.5
  import -silent -frame -window "$(active_window)" "$pictures/$1"
}

drag() { # BUTTON X Y TO_X TO_Y
  xdotool mousemove --window "$main" $((left + $2)) $((top + $3)) sleep 0.1 mousedown "$1" \
    mousemove --window "$main" $((left + $4)) $((top + $5)) sleep 0.1 mouseup "$1"
}

# Selects the age with the mouse, and pastes it with the middle button into a field, but not into
# one that the pointer leaves before the button is released.
paste_what_is_selected() {
  drag 1 306 32 280 32
  drag 2 413 88 500 88
  drag 2 680 32 680 32
  press ctrl+p
  expect_parameters 'after a paste by the middle button' "07db3c043fe3333333333333${remembered:16}"
}

# The mouse on a desktop where a click reaches a window before it has become the active one.
work_with_the_mouse() {
  local help x y width height
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

  move_window "$help" 400 60
  read -r x y width height < <(window_place "$help")
  xdotool mousemove $((x + width - 2)) $((y + height - 2)) sleep 0.2 mousedown 1 sleep 0.2 \
    mousemove $((x + width + 48)) $((y + height + 38)) sleep 0.2 mouseup 1
  wait_for 20 eval '[[ $(window_place "$help") = *" $((width + 50)) $((height + 40))" ]]' || fail 'the corner is no grip'
  click_in "$main" $((left + 145)) $((top + 32))

  press super+shift+m
  wait_for 20 is_wide "$main" || fail 'the desktop could not maximise the window'
  expect 'colour beside the content' '#CCFFCC' "$(colour_at 900 400)"
  press Tab
  type_text 60
  press ctrl+p
  expect_parameters 'after typing in the maximised window' "07df3c04$remembered"
  read -r _ _ width height < <(window_place "$main")
  expect 'colour of the cross that closes' '#000000' "$(colour_at $((width - 17 - left)) $((17 - top)))"
  click_in "$main" $((width - 17)) 17
}
is_wide() { [ "$(window_place "$1" | awk '{ print $3 }')" -gt 1000 ]; }

trap close_screen EXIT
line_end=
launch() { exec "$program"; }
typed_path() { echo "$1"; }
case $session in
  x11) open_screen 1024x640 ;;
  wayland) need weston && open_wayland 1024x640 ;;
  windows)
    need wine && open_windows 1024x640
    parameters=$windows_home/AppData/Roaming/Fundlet.Preferences
    line_end='\r'
    launch() { exec wine "$program"; }
    typed_path() { windows_path "$1"; }
    ;;
esac
folder=$screen_folder
parameters=${parameters:-$XDG_CONFIG_HOME/Fundlet.Preferences}

if [ "$session" != windows ] && ldd "$program" | grep -iE 'network|curl|ssl|http'; then
  fail 'linked with what talks to a network'
fi

launch &
process=$!
screen_processes+=("$process")
wait_for 60 other_window_of_is_active "$process" none || fail 'the window did not open'
main=$(active_window)
read -r _ _ width height < <(window_place "$main")
# The place of the content in the window.
left=$(((width - 740) / 2))
top=$((height - 220 - left))
expect 'width of the border' "$([ "$session" = wayland ] && echo 1 || echo 0)" "$left"
expect 'title' Fundlet "$(window_title "$main")"
expect_parameters 'after the first start' "$(date +%Y | xargs printf %04x)"411b3f947ae147ae147b412e848000000000\
3fa999999999999a40d388000000000040f86a0000000000
expect 'colour of the window' '#CCFFCC' "$(colour_at 5 210)"
nothing_drawn=$(result_picture)

press Return
wait_for 20 eval '! result_picture_is "$nothing_drawn"' || fail 'no result on the screen'
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
save_schedule
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

if [ "$session" = x11 ]; then paste_what_is_selected; fi
if [ "$session" = wayland ]; then work_with_the_mouse; else press alt+F4; fi
wait "$process" || fail "exit status $?"
