#!/usr/bin/env bash
# Builds the Debian package into a folder, and checks it with lintian: package.sh SOURCE FOLDER
set -euo pipefail
source=$1
folder=$2
. "$source/tests/packaging/helpers.sh"
need dh lintian

rm -rf "$folder"
mkdir -p "$folder"
# No file in the package may keep the permissions of this narrow mask.
(umask 077 && "$source/packaging/build-deb" "$folder" >"$folder/log" 2>&1) ||
  { tail -50 "$folder/log"; fail 'the package could not be built'; }
# The test of the installed program checks AppStream's remarks one by one.
lintian --allow-root --fail-on none "$folder"/*.deb >"$folder/lintian.log"
! grep '^[EW]:' "$folder/lintian.log" | grep -vw appstream-metadata-validation-failed ||
  fail 'lintian found these faults'
