# shellcheck shell=bash
# To be sourced. Installs what a purpose needs and the machine lacks, from Debian's packages.

# Purpose, package, and a command of the package: where the command exists, nothing is installed.
# A dash stands for a package without one, a library or data; dpkg-query is asked about it.
package_table() {
  cat <<'TABLE'
build   cmake             cmake
build   ninja-build       ninja
build   g++               c++
build   qt6-base-dev      -
wayland qt6-wayland       -
package build-essential   -
package debhelper         dh
screen  xvfb              Xvfb
screen  openbox           openbox
screen  xdotool           xdotool
screen  imagemagick       import
tests   libgtest-dev      -
tests   locales           -
tests   dbus              dbus-run-session
tests   at-spi2-core      -
tests   python3-pyatspi   -
tests   orca              orca
tests   speech-dispatcher speech-dispatcher
tests   build-essential   -
tests   debhelper         dh
tests   lintian           lintian
tests   debootstrap       debootstrap
tests   desktop-file-utils desktop-file-validate
tests   appstream         appstreamcli
tests   man-db            man
tests   x11-utils         xprop
tests   weston            weston
tests   qt6-wayland       -
tests   fonts-dejavu-core -
tests   fonts-liberation  -
tests   fonts-noto-core   -
fuzz    clang             clang++
fuzz    libclang-rt-dev   -
fuzz    llvm              llvm-symbolizer
lint    clang-format      clang-format
lint    clang-tidy        clang-tidy
lint    cppcheck          cppcheck
coverage gcovr             gcovr
elsewhere googletest       -
elsewhere clang            clang++
elsewhere libc++-dev       -
elsewhere libc++abi-dev    -
elsewhere qemu-user        qemu-s390x
elsewhere g++-aarch64-linux-gnu aarch64-linux-gnu-g++
elsewhere g++-s390x-linux-gnu s390x-linux-gnu-g++
elsewhere g++-mingw-w64-x86-64-posix x86_64-w64-mingw32-g++-posix
elsewhere wine             wine
windows g++-mingw-w64-x86-64-posix x86_64-w64-mingw32-g++-posix
windows dpkg-dev         dpkg-source
windows nsis             makensis
windows googletest       -
windows wine             wine
bench   libbenchmark-dev  -
bench   python3           python3
TABLE
}

have() { command -v "$1" >/dev/null 2>&1; }

fail() {
  printf '%s: %s\n' "$(basename "$0")" "$*" >&2
  exit 1
}

# Ends a script that was given arguments it does not know.
usage() {
  printf 'usage: %s\n' "$*" >&2
  exit 2
}

package_is_there() {
  local package=$1 command=$2
  if [ "$command" != - ] && have "$command"; then return 0; fi
  if have dpkg-query; then
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ]
  else
    # Without dpkg nobody knows; CMake reports a library that is missing.
    [ "$command" = - ]
  fi
}

missing_packages() {
  local wanted=" $* " purpose package command
  while read -r purpose package command; do
    case $wanted in *" $purpose "*) ;; *) continue ;; esac
    package_is_there "$package" "$command" || printf '%s ' "$package"
  done < <(package_table)
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

can_be_root() {
  [ "$(id -u)" -eq 0 ] || { have sudo && { [ -t 0 ] || sudo -n true 2>/dev/null; }; }
}

apt_get() {
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 "$@"
}

# install_for PURPOSE...
install_for() {
  local missing
  missing=$(missing_packages "$@")
  missing=${missing% }
  [ -n "$missing" ] || return 0
  have apt-get || fail "These packages of Debian are missing, and there is no apt-get: $missing
Install the same software with this system's own package manager. The program is built with CMake
3.25, Ninja, a compiler for C++20, and Qt 6.4 Widgets with its headers."
  can_be_root || fail "These packages are missing: $missing
Only root can install them, and sudo is missing or asks for a password without a terminal. As root, run
  apt-get install --no-install-recommends $missing
and then start this script again."
  printf 'Installing with apt-get: %s\n' "$missing"
  # shellcheck disable=SC2086  # one word for each package
  { apt_get update && apt_get install -y --no-install-recommends $missing; } ||
    fail "apt-get could not install $missing
Its message stands above. It needs the network, and Debian 12 or newer."
}
