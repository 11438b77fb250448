# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034

# Sourced by the other scripts: the Debian packages that the project needs, and how to get them.

PACKAGES_BUILD="cmake ninja-build g++ pkg-config libgtest-dev libgmock-dev nlohmann-json3-dev"
PACKAGES_FUZZ="clang libclang-rt-dev llvm"
PACKAGES_LINT="clang clang-format clang-tidy git pkg-config python3 shellcheck"
PACKAGES_QT="qt6-base-dev libqt6opengl6-dev qt6-svg-dev libqt6svg6 qt6-translations-l10n fonts-liberation libsm-dev libice-dev libxcb-damage0-dev libxcb-xtest0-dev"
PACKAGES_PACKAGE="dpkg-dev file git help2man lintian"
PACKAGES_WINDOWS="g++-mingw-w64-x86-64-posix googletest wine wine64"
PACKAGES_DISPLAY="poppler-utils procps xvfb openbox xdotool x11-utils strace imagemagick python3-pyatspi orca at-spi2-core dbus-daemon dbus-bin"

# Of the long tests alone.
PACKAGES_WAYLAND="qt6-wayland weston"

# Installs those of the named packages that are missing, as root or with sudo.
install_packages() {
    local missing=()
    local package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Missing packages, and neither root nor sudo: ${missing[*]}" >&2; return 1; }
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
