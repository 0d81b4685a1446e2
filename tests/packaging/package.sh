#!/usr/bin/env bash
# Builds the Debian package and looks it over: package.sh SOURCE FOLDER
set -euo pipefail
source=$1
folder=$2
. "$source/tests/packaging/helpers.sh"
need dh lintian

rm -rf "$folder"
mkdir -p "$folder"
# A narrow mask, which no file in the package may keep.
(umask 077 && "$source/packaging/build-deb" "$folder" >"$folder/log" 2>&1) ||
  { tail -50 "$folder/log"; fail 'the package could not be built'; }
# What AppStream says is looked at, remark by remark, by the test of the installed program.
lintian --allow-root --fail-on none "$folder"/*.deb >"$folder/lintian.log"
! grep '^[EW]:' "$folder/lintian.log" | grep -vw appstream-metadata-validation-failed ||
  fail 'lintian has found what stands above'
