# shellcheck shell=bash
# To be sourced. Opens a virtual screen with a window manager, and types and clicks on it.
. "$(dirname "${BASH_SOURCE[0]}")/install.sh"

# Ends a test that cannot run on this machine, with the status by which ctest knows it as skipped.
skip() {
  echo "Skipped: $*"
  exit 77
}

# need COMMAND...: skips the test unless all commands are installed.
need() {
  local command
  for command in "$@"; do
    have "$command" || skip "$command is not installed."
  done
}

screen_folder=
screen_processes=()

# wait_for SECONDS COMMAND...: runs the command again and again until it succeeds; fails if it has not
# after about that many seconds.
wait_for() {
  local tries=$(($1 * 20))
  shift
  until "$@" >/dev/null 2>&1; do
    tries=$((tries - 1))
    [ "$tries" -gt 0 ] || return 1
    sleep 0.05
  done
}

# open_screen SIZE, such as 1024x640: opens a virtual screen, and sets DISPLAY to it and HOME to an
# empty folder, so that no file of the user's is read or written.
open_screen() {
  screen_folder=$(mktemp -d)
  mkdir -m 700 "$screen_folder/home" "$screen_folder/config" "$screen_folder/runtime"
  unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS XDG_CURRENT_DESKTOP XDG_SESSION_TYPE
  unset QT_SCALE_FACTOR QT_FONT_DPI QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME
  export HOME=$screen_folder/home XDG_CONFIG_HOME=$screen_folder/config
  export XDG_RUNTIME_DIR=$screen_folder/runtime QT_QPA_PLATFORM=xcb
  # Without -noreset Xvfb starts anew when the first xdotool leaves, and may take openbox with it.
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset \
    3>"$screen_folder/display" 2>"$screen_folder/Xvfb.log" &
  screen_processes+=($!)
  wait_for 20 test -s "$screen_folder/display" || fail 'the virtual screen did not open'
  DISPLAY=:$(cat "$screen_folder/display")
  export DISPLAY
  openbox >"$screen_folder/openbox.log" 2>&1 &
  screen_processes+=($!)
  wait_for 20 xdotool get_desktop || fail 'the window manager did not start'
  open_bus
}

# Starts a session bus for the screen, if D-Bus is installed. Without an address libdbus would run
# dbus-launch, and leak memory if that is missing.
open_bus() {
  local bus=$screen_folder/runtime/bus
  command -v dbus-daemon >/dev/null || return 0
  dbus-daemon --session --nofork --nopidfile --address="unix:path=${bus// /%20}" \
    2>"$screen_folder/bus.log" &
  screen_processes+=($!)
  wait_for 20 test -S "$bus" || fail 'the session bus did not start'
  export DBUS_SESSION_BUS_ADDRESS=unix:path=${bus// /%20}
}

# open_wayland SIZE: does what open_screen does, and opens a Wayland desktop on the screen, on which
# programs draw the frames of their windows themselves.
open_wayland() {
  open_screen "$1"
  printf '%s\n' '[shell]' panel-position=none close-animation=none startup-animation=none \
    '[input-method]' path= '[keyboard]' repeat-rate=0 >"$screen_folder/weston.ini"
  weston --backend=x11-backend.so --use-pixman --fullscreen --width="${1%x*}" --height="${1#*x}" \
    --socket=wayland-test --idle-time=0 --debug --config="$screen_folder/weston.ini" --log="$screen_folder/weston.log" >/dev/null 2>&1 &
  screen_processes+=($!)
  export WAYLAND_DISPLAY=wayland-test QT_QPA_PLATFORM=wayland
  wait_for 20 weston-debug scene-graph || fail 'the Wayland desktop did not open'
  # weston adds up the pointer's movements. After one into a corner, both pointers are in one place.
  xdotool mousemove 4000 4000 sleep 0.5 mousemove 0 0 sleep 0.5
}

# open_windows SIZE: does what open_screen does, and starts wine, to run programs of Windows, with an
# empty drive. Sets windows_home to the user's folder on it.
open_windows() {
  open_screen "$1"
  # Keeps wine from adding menu entries to this machine, and from offering to download what it lacks.
  export WINEDLLOVERRIDES='winemenubuilder.exe,mscoree,mshtml=' WINEDEBUG=-all
  export WINEPREFIX=$screen_folder/wine
  mkdir "$WINEPREFIX"
  wineserver --foreground --persistent >"$screen_folder/wine.log" 2>&1 &
  screen_processes+=($!)
  wineboot --init >>"$screen_folder/wine.log" 2>&1 || fail 'wine did not start'
  windows_home=$WINEPREFIX/drive_c/users/$(id -un)
}

# windows_path FILE: prints the name by which programs of Windows know a file of this machine.
windows_path() { tr / '\\' <<<"Z:$1"; }

on_wayland() { [ -n "${WAYLAND_DISPLAY:-}" ]; }

# Prints the windows on the Wayland desktop, the front one first: WINDOW PROCESS X Y RIGHT BOTTOM TITLE.
wayland_windows() {
  weston-debug scene-graph | sed -nE "/role xdg_toplevel/ { N
    s/.*PID ([0-9]+), surface ID ([0-9]+)[^']*'(.*)'.*: \((-?[0-9]+), (-?[0-9]+)\) -> \((-?[0-9]+), (-?[0-9]+)\).*/\2 \1 \4 \5 \6 \7 \3/p }"
}

# Ends all processes of the screen, the last first, and removes its folder.
close_screen() {
  local i
  # This also ends the programs of Windows; kill on wineserver's process would leave them behind.
  [ ! -d "$screen_folder/wine" ] || wineserver --kill || true
  for ((i = ${#screen_processes[@]} - 1; i >= 0; i--)); do
    kill "${screen_processes[i]}" 2>/dev/null || true
    wait "${screen_processes[i]}" 2>/dev/null || true
  done
  screen_processes=()
  [ -z "$screen_folder" ] || rm -rf "$screen_folder"
}

# Print the window that has the keyboard focus, and its process.
active_window() {
  if on_wayland; then wayland_windows | awk '{ print $1; exit }'; else xdotool getactivewindow 2>/dev/null; fi
}
active_process() {
  if on_wayland; then
    wayland_windows | awk '{ print $2; exit }'
  else
    xdotool getwindowpid "$(active_window)" 2>/dev/null
  fi
}

window_title() {
  if on_wayland; then
    wayland_windows | sed -nE "s/^$1 ([^ ]+ ){5}//p"
  else
    xdotool getwindowname "$1"
  fi
}

# window_place WINDOW: prints X Y WIDTH HEIGHT; under X the place is 0 0, because there click_in and
# window_picture count from the window's corner.
window_place() {
  if on_wayland; then
    wayland_windows | awk -v window="$1" '$1 == window { print $3, $4, $5 - $3, $6 - $4 }'
  else
    xdotool getwindowgeometry --shell "$1" | awk -F= '/^WIDTH/ { w = $2 } /^HEIGHT/ { print 0, 0, w, $2 }'
  fi
}

# window_picture WINDOW X Y WIDTH HEIGHT FILE: saves a picture of a part of the window.
window_picture() {
  local x y rest window=root
  read -r x y rest < <(window_place "$1")
  on_wayland || window=$1
  import -silent -window "$window" -crop "$4x$5+$((x + $2))+$((y + $3))" -depth 8 "$6"
}

# click_in WINDOW X Y: clicks at that place of the window.
click_in() {
  local x y rest
  read -r x y rest < <(window_place "$1")
  if on_wayland; then
    xdotool mousemove "$((x + $2))" "$((y + $3))"
  else
    xdotool mousemove --window "$1" "$2" "$3"
  fi
  xdotool sleep 0.2 click 1
}

# move_window WINDOW X Y: drags the window by its title bar to that place of the Wayland desktop.
move_window() {
  local x y rest
  read -r x y rest < <(window_place "$1")
  xdotool mousemove "$((x + 100))" "$((y + 15))" sleep 0.2 mousedown 1 sleep 0.2 \
    mousemove "$(($2 + 60))" "$(($3 + 15))" mousemove "$(($2 + 100))" "$(($3 + 15))" sleep 0.2 mouseup 1
}

is_active() { [ "$(active_window)" = "$1" ]; }

# other_window_of_is_active PROCESS WINDOW: a window of the process has the keyboard focus, and it is
# not WINDOW (which may be "none").
other_window_of_is_active() { [ "$(active_process)" = "$1" ] && ! is_active "$2"; }

press() { xdotool key --clearmodifiers --delay 30 "$@"; }
type_text() { xdotool type --clearmodifiers --delay 20 -- "$1"; }

# type_fields TEXT...: types each text into a field, from the field with the focus on, in Tab order.
type_fields() {
  local text
  for text in "$@"; do
    type_text "$text"
    press Tab
  done
}
