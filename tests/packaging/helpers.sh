# shellcheck shell=bash
# To be sourced; $source is the folder of the sources.
. "$source/tools/screen.sh"

# desktop_entry_value FILE KEY
desktop_entry_value() { sed -n "s/^$2=//p" "$1"; }

# start_and_quit DESKTOP_ENTRY COMMAND...: starts the program, expects a window with an icon and with
# the class that the desktop entry names, and quits by the shortcut.
start_and_quit() {
  local entry=$1 process
  shift
  "$@" &
  process=$!
  screen_processes+=("$process")
  wait_for 60 other_window_of_is_active "$process" none || fail "no window of $*"
  xprop -id "$(active_window)" WM_CLASS |
    grep -qF "\"$(desktop_entry_value "$entry" StartupWMClass)\"" || fail 'the class of the window is not that of the desktop entry'
  xprop -id "$(active_window)" _NET_WM_ICON >"$screen_folder/icon"
  grep -qF '(64 x 64)' "$screen_folder/icon" || fail 'the window has no icon'
  press ctrl+q
  wait "$process" || fail "exit status $? of $*"
}
