#!/usr/bin/env bash
# Installs the package into a fresh Debian, starts the program there, and removes the package:
# package_in_fresh_root.sh SOURCE FOLDER
set -euo pipefail
source=$1
folder=$2
. "$source/tests/packaging/helpers.sh"
need debootstrap Xvfb openbox xdotool xprop
[ "$(id -u)" -eq 0 ] || skip 'only root can make a fresh root.'
[ -e "$folder/lintian.log" ] || skip 'the package has not been built.'
. /etc/os-release
[ "$ID" = debian ] || skip 'debootstrap makes no root of this system.'

root=$(mktemp -d)
trap 'close_screen; rm -rf "$root"' EXIT
timeout 240 debootstrap --variant=minbase "$VERSION_CODENAME" "$root" >"$folder/debootstrap.log" ||
  { tail "$folder/debootstrap.log"; skip 'debootstrap could not make a fresh root.'; }

in_root=(chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8)
apt_in_root() {
  "${in_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get -q -y "$@" >"$folder/apt.log" 2>&1 ||
    { tail -50 "$folder/apt.log"; fail "apt-get $*"; }
}

cp "$folder"/*.deb "$root/fundlet.deb"
apt_in_root install --no-install-recommends /fundlet.deb
files=$("${in_root[@]}" dpkg -L fundlet)
open_screen 1024x640
start_and_quit "$root/usr/share/applications/fundlet.desktop" \
  "${in_root[@]}" DISPLAY="$DISPLAY" fundlet
[ -s "$root/root/.config/Fundlet.Preferences" ] || fail 'no parameters in ~/.config'

apt_in_root purge fundlet
while read -r file; do
  [ -d "$root/$file" ] || [ ! -e "$root/$file" ] || fail "$file is left after the removal"
done <<<"$files"
