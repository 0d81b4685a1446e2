# shellcheck shell=bash
# To be sourced, with the folder of the sources in $source.
. "$source/tools/screen.sh"

# desktop_entry_value FILE KEY
desktop_entry_value() { sed -n "s/^$2=//p" "$1"; }

# start_and_quit DESKTOP_ENTRY COMMAND...: the window opens with the program's icon and the class
# that the desktop entry is found by, and is closed by its shortcut.
start_and_quit() {
  local entry=$1 process
  shift
  "$@" &
  process=$!
  screen_processes+=("$process")
  wait_for 60 other_window_of_is_active "$process" none || fail "no window of $*"
  xprop -id "$(active_window)" WM_CLASS |
    grep -qF "\"$(desktop_entry_value "$entry" StartupWMClass)\"" || fail 'class of the window'
  xprop -id "$(active_window)" _NET_WM_ICON >"$screen_folder/icon"
  grep -qF '(64 x 64)' "$screen_folder/icon" || fail 'the window has no icon'
  press ctrl+q
  wait "$process" || fail "exit status $? of $*"
}
