#!/usr/bin/env bash
# Installs what building and testing Nightreel 2000 needs on Debian 12.
set -euo pipefail
packages=(
    cmake ninja-build g++ clang-format
    qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite libgl1-mesa-dev
    libsqlite3-dev sqlite3
    libpulse-dev pulseaudio pulseaudio-utils libmp3lame-dev lame sox
    clang libclang-rt-14-dev xvfb xauth
    trayer xdotool x11-utils
    libgstreamer1.0-dev gstreamer1.0-plugins-base gstreamer1.0-plugins-good
    libgstreamer-plugins-base1.0-dev gstreamer1.0-plugins-bad glib-networking ca-certificates
    libsox-fmt-base openssl
    libglib2.0-dev libxcb1-dev libxcb-ewmh-dev libxcb-icccm4-dev
    dbus python3-dbusmock openbox
    weston qt6-wayland pipewire pipewire-pulse wireplumber
    desktop-file-utils appstream librsvg2-bin dpkg-dev file libqt6svg6
    qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo_cmd=""
    [ "$(id -u)" -eq 0 ] || sudo_cmd="sudo"
    $sudo_cmd apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
