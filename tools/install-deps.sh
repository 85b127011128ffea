#!/usr/bin/env bash
# Installs every Debian package the program, its tests and benchmarks need, when any
# is missing. Runs as root or through sudo.
set -euo pipefail

PACKAGES=(
    build-essential cmake ninja-build pkg-config ccache
    qt6-base-dev qt6-base-dev-tools qt6-charts-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools
    qt6-l10n-tools qt6-translations-l10n libqt6opengl6-dev libgl-dev
    libopencv-dev libopencv-contrib-dev libraw-dev libheif-dev libheif-examples
    libxxhash-dev xxhash libsqlite3-dev libspdlog-dev libfmt-dev libbackward-cpp-dev libdw-dev
    rclone xvfb xauth imagemagick g++-mingw-w64-x86-64
    fonts-dejavu-core fonts-noto-cjk
    fdupes jdupes rmlint python3 time libglib2.0-bin strace btrfs-progs
    python3-numpy python3-pil python3-opencv libjpeg-dev libpng-dev
)

missing=()
for package in "${PACKAGES[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

SUDO=""
if [ "$(id -u)" -ne 0 ]; then
    SUDO="sudo"
fi
echo "Installing: ${missing[*]}"
$SUDO apt-get update -qq -o DPkg::Lock::Timeout=600
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq -o DPkg::Lock::Timeout=600 "${missing[@]}"
