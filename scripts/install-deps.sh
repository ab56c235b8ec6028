#!/usr/bin/env bash
# Installs what building and testing Lullet needs on Debian 12. Safe to run again: it does
# nothing (and asks no mirror) when every package is already there.
set -euo pipefail

packages=(
  build-essential cmake ninja-build ccache pkg-config git
  qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-l10n-tools qt6-translations-l10n python3
  libicu-dev libsqlite3-dev libgl-dev
  xvfb xauth dbus dbus-x11 fonts-dejavu-core clang-format clang-tidy
  openbox xdotool x11-utils
  qtkeychain-qt6-dev libsecret-1-0 gnome-keyring
  desktop-file-utils poppler-utils xdg-utils
  appstream librsvg2-bin dpkg-dev libxcb1-dev libxcb-screensaver0-dev
  libcanberra-dev sound-theme-freedesktop
  libical-dev radicale apache2-utils python3-bcrypt openssl
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
