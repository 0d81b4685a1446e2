# shellcheck shell=bash
# To be sourced. A virtual screen with a window manager, and a person at its keyboard.

screen_folder=
screen_processes=()

# Runs a command again and again until it succeeds, for so many seconds at most.
wait_for() {
  local tries=$(($1 * 20))
  shift
  until "$@" >/dev/null 2>&1; do
    tries=$((tries - 1))
    [ "$tries" -gt 0 ] || return 1
    sleep 0.05
  done
}

# Opens a screen of the given size, such as 1024x640, and a home of its own, so that nothing of the
# user's is read or written. Sets DISPLAY.
open_screen() {
  screen_folder=$(mktemp -d)
  mkdir -m 700 "$screen_folder/home" "$screen_folder/config" "$screen_folder/runtime"
  unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS XDG_CURRENT_DESKTOP XDG_SESSION_TYPE
  unset QT_SCALE_FACTOR QT_FONT_DPI QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME
  export HOME=$screen_folder/home XDG_CONFIG_HOME=$screen_folder/config
  export XDG_RUNTIME_DIR=$screen_folder/runtime QT_QPA_PLATFORM=xcb
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp \
    3>"$screen_folder/display" 2>"$screen_folder/Xvfb.log" &
  screen_processes+=($!)
  wait_for 20 test -s "$screen_folder/display" || return 1
  DISPLAY=:$(cat "$screen_folder/display")
  export DISPLAY
  openbox >"$screen_folder/openbox.log" 2>&1 &
  screen_processes+=($!)
  wait_for 20 xdotool get_desktop || return 1
  open_bus
}

# A session bus of the screen's own, where there is D-Bus at all. Left to look for one, libdbus calls
# for dbus-launch, and where that is missing it loses memory.
open_bus() {
  local bus=$screen_folder/runtime/bus
  command -v dbus-daemon >/dev/null || return 0
  dbus-daemon --session --nofork --nopidfile --address="unix:path=${bus// /%20}" \
    2>"$screen_folder/bus.log" &
  screen_processes+=($!)
  wait_for 20 test -S "$bus" || return 1
  export DBUS_SESSION_BUS_ADDRESS=unix:path=${bus// /%20}
}

# Ends what was started on the screen, the last first, and removes the home.
close_screen() {
  local i
  for ((i = ${#screen_processes[@]} - 1; i >= 0; i--)); do
    kill "${screen_processes[i]}" 2>/dev/null || true
    wait "${screen_processes[i]}" 2>/dev/null || true
  done
  screen_processes=()
  [ -z "$screen_folder" ] || rm -rf "$screen_folder"
}

# The window that has the keyboard, and the process it belongs to.
active_window() { xdotool getactivewindow 2>/dev/null; }
active_process() { xdotool getwindowpid "$(active_window)" 2>/dev/null; }

is_active() { [ "$(active_window)" = "$1" ]; }

# A window of the process has the keyboard, and it is not the one named (which may be none).
other_window_of_is_active() { [ "$(active_process)" = "$1" ] && ! is_active "$2"; }

press() { xdotool key --clearmodifiers --delay 30 "$@"; }
type_text() { xdotool type --clearmodifiers --delay 20 -- "$1"; }

# Types the texts into one field after the other, from the one that has the focus.
type_fields() {
  local text
  for text in "$@"; do
    type_text "$text"
    press Tab
  done
}
