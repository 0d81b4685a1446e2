#!/usr/bin/env bash
# Installs the built program into an empty folder, checks the files, and starts it there:
# installed.sh SOURCE BUILD
set -euo pipefail
source=$1
build=$2
. "$source/tests/packaging/helpers.sh"
need desktop-file-validate appstreamcli man Xvfb openbox xdotool xprop identify

folder=$(mktemp -d)
trap 'close_screen; rm -rf "$folder"' EXIT
cmake --install "$build" --prefix "$folder/prefix" >/dev/null
share=$folder/prefix/share
entry=$share/applications/fundlet.desktop

desktop-file-validate "$entry"
[ -s "$share/icons/hicolor/scalable/apps/fundlet.svg" ] || fail 'the scalable icon is not there'
for size in 16 32 64 128 256; do
  [ "$(identify -format %wx%h "$share/icons/hicolor/${size}x$size/apps/fundlet.png")" = \
    "${size}x$size" ] || fail "the icon of $size by $size is not there"
done
# Newer releases of AppStream report that the home page is missing; the program has none.
validate_metainfo() {
  local remarks
  remarks=$(appstreamcli validate --no-net --no-color "$1" 2>&1) ||
    [ "$(sed -n 's/^[EW]:.* //p' <<<"$remarks")" = url-homepage-missing ] || fail "$remarks"
}
validate_metainfo "$share"/metainfo/*.xml
cmake -S "$source" -B "$folder/build" -G Ninja -DBUILD_TESTING=OFF -DFUNDLET_BENCH=OFF \
  -DFUNDLET_SCREENSHOT_URL=https://example.org/doc/window.png >/dev/null
validate_metainfo "$folder"/build/packaging/*.metainfo.xml
grep -q '<image>https://example.org/' "$folder"/build/packaging/*.metainfo.xml ||
  fail 'the screenshot is not in the metainfo'

# The version is given in project() alone; everything else takes it from there.
version=$(sed -n 's/^project(Fundlet VERSION \([^ ]*\).*/\1/p' "$source/CMakeLists.txt")
copies=$(cd "$source" && grep -rIE --exclude-dir='build*' --exclude-dir=.git \
  "([Vv]ersion|[Ff]undlet)[ _\"(=]*${version//./\\.}([^0-9.]|$)" .) && fail "another version:"$'\n'"$copies"
grep -q "^## $version\$" "$source/CHANGELOG.md" || fail "CHANGELOG.md has nothing on $version"

remarks=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z \
  "$share/man/man1/fundlet.1" 2>&1 >/dev/null)
[ -z "$remarks" ] || fail "manual page: $remarks"

open_screen 1024x640
# expect_no_window CAUSE COMMAND...: the program, started by the command, ends with status 1 and one
# line that names the cause.
expect_no_window() {
  local status=0 cause=$1
  shift
  "$@" "$folder/prefix/bin/fundlet" >"$folder/output" 2>&1 || status=$?
  [ "$status" -eq 1 ] && [ "$(wc -l <"$folder/output")" -eq 1 ] && grep -q "$cause" "$folder/output" ||
    fail "without a window, status $status: $(cat "$folder/output")"
}
expect_no_window 'there is no desktop, because neither DISPLAY nor WAYLAND_DISPLAY is set$' env -u DISPLAY
expect_no_window 'connect to display :none' env DISPLAY=:none
expect_no_window 'plugin "none"' env QT_QPA_PLATFORM=none
start_and_quit "$entry" "$folder/prefix/bin/$(desktop_entry_value "$entry" Exec)"
