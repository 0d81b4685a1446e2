#!/usr/bin/env bash
# Builds the Debian package twice and looks it over: package.sh SOURCE FOLDER
set -euo pipefail
source=$1
folder=$2
. "$source/tests/packaging/helpers.sh"
need dh lintian Xvfb openbox xdotool xprop

rm -rf "$folder"
mkdir -p "$folder"
# A time to come, which no clock gives by itself.
export SOURCE_DATE_EPOCH=4000000000
build() {
  "$source/packaging/build-deb" "$folder/$1" >"$folder/$1.log" 2>&1 ||
    { tail -50 "$folder/$1.log"; wrong 'the package could not be built'; }
}
build first
(umask 077 && TZ=Asia/Tokyo LC_ALL=C build second)
cmp "$folder"/first/*.deb "$folder"/second/*.deb || wrong 'two builds differ'
lintian --allow-root --fail-on error,warning "$folder"/first/*.deb

dpkg-deb -x "$folder"/first/*.deb "$folder/unpacked"
trap close_screen EXIT
open_screen 1024x640 || wrong 'the virtual screen did not open'
start_and_quit "$folder/unpacked/usr/share/applications/fundlet.desktop" \
  "$folder/unpacked/usr/bin/fundlet"
