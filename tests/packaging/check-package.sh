#!/usr/bin/env bash
# Builds the Debian package from a build folder, unpacks it and checks what a desktop needs of
# it: the program answers, its entry and metainfo are valid, its icons and pages are in place, and
# the libraries it links are among its dependencies.
# Usage: check-package.sh BUILD_FOLDER APP_ID VERSION
set -euo pipefail
build=$1 id=$2 version=$3

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

if ! cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work/out" >"$work/cpack.log" 2>&1; then
    cat "$work/cpack.log"
    exit 1
fi
deb=$(echo "$work"/out/*.deb)
dpkg-deb -x "$deb" "$work/root"
root=$work/root/usr

status=0
fail() {
    echo "FAIL: $*"
    status=1
}

expected=(
    bin/lullet
    "share/applications/$id.desktop"
    "share/metainfo/$id.metainfo.xml"
    "share/icons/hicolor/scalable/apps/$id.svg"
    "share/icons/hicolor/symbolic/apps/$id-symbolic.svg"
    share/man/man1/lullet.1.gz
    "share/lullet/Lullet User's Guide.pdf"
)
for size in 16 22 24 32 48 64 128 256; do
    expected+=("share/icons/hicolor/${size}x${size}/apps/$id.png")
done
for file in "${expected[@]}"; do
    [ -s "$root/$file" ] || fail "the package lacks $file"
done
# Only what the program needs: no tests, benchmarks or build tools.
unexpected=$(cd "$root/bin" && ls | grep -vx lullet || true)
[ -z "$unexpected" ] || fail "the package carries other programs: $unexpected"

desktop-file-validate "$root/share/applications/$id.desktop" || fail "the desktop entry"
appstreamcli validate --no-net "$root/share/metainfo/$id.metainfo.xml" >"$work/appstream.log" ||
    { cat "$work/appstream.log"; fail "the metainfo"; }
grep -q "<release version=\"$version\"" "$root/share/metainfo/$id.metainfo.xml" ||
    fail "the metainfo has no release $version"

depends=$(dpkg-deb -f "$deb" Depends)
for library in libqt6widgets6 libqt6dbus6 libsqlite3-0 qt6-qpa-plugins; do
    [[ $depends == *"$library"* ]] || fail "Depends lacks $library: $depends"
done
[ "$(dpkg-deb -f "$deb" Version)" = "$version" ] || fail "the package's version"

answer=$("$root/bin/lullet" --version) || fail "the unpacked program does not run"
[ "$answer" = "lullet $version" ] || fail "--version says '$answer'"

exit $status
