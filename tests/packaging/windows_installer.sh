#!/usr/bin/env bash
# The installer for Windows under wine, asked nothing: windows_installer.sh FOLDER
# FOLDER is what packaging/windows/build-package has left.
set -euo pipefail
folder=$1
. "$(dirname "$0")/../../tools/screen.sh"
need wine Xvfb openbox xdotool

trap close_screen EXIT
open_windows 1024x640
setup=$(ls "$folder"/fundlet-*-setup.exe)
version=$(basename "$setup" | sed 's/^fundlet-\(.*\)-setup\.exe$/\1/')
programs=$windows_home/AppData/Local/Programs
installed=$programs/Fundlet
data=$windows_home/AppData/Roaming
shortcut="$data/Microsoft/Windows/Start Menu/Programs/Fundlet.lnk"

registered() {
  wine reg query 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Fundlet' /v "$1" |
    tr -d '\r' | sed -n 's/^.*REG_SZ *//p'
}
is_unregistered() { ! [ -e "$shortcut" ] && [ -z "$(registered DisplayName)" ]; }
window_is_open() { [ "$(window_title "$(active_window)")" = Fundlet ]; }
no_window_is_open() { ! window_is_open; }

mkdir -p "$installed"
echo 'This is of no version.' >"$installed/users.txt"
wine "$setup" /S || fail 'the silent installation failed'
differences=$(diff -r "$folder/Fundlet" "$installed" | sort || true)
[ "$differences" = "Only in $installed: uninstall.exe"$'\n'"Only in $installed: users.txt" ] ||
  fail "what is installed is not what was packed: $differences"
[ "$(registered DisplayVersion)" = "$version" ] || fail 'Windows is told no version, or another'
[ -e "$shortcut" ] || fail 'there is no entry in the start menu'

wine start /unix "$shortcut"
wait_for 60 window_is_open || fail 'the entry in the start menu opens no window'
! wine "$setup" /S || fail 'a program that runs is replaced'
window_is_open || fail 'the refused installation closed the window'
press alt+F4
wait_for 20 no_window_is_open || fail 'the window stayed'
[ -e "$data/Fundlet.Preferences" ] || fail 'the installed program wrote no plan'

wine "$setup" /S || fail 'installing it again failed'
wine "$installed/uninstall.exe" /S || fail 'the silent removal failed'
wait_for 20 is_unregistered || fail 'the start menu or the list of programs still has it'
[ "$(ls "$installed")" = users.txt ] || fail "other files are left than the user's: $(ls "$installed")"
[ -e "$data/Fundlet.Preferences" ] || fail 'the removal took the plan'
