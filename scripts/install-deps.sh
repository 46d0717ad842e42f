#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the demo need, and only those missing.
# Safe to run repeatedly; uses sudo when not root. Non-interactive.
set -euo pipefail

packages=(
  build-essential cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools
  qt6-l10n-tools qt6-qpa-plugins libqt6svg6 libgl-dev libxkbcommon-dev
  clang libclang-rt-14-dev python3
  xvfb xauth trayer xdotool x11-utils dbus dbus-daemon at-spi2-core python3-pyatspi dbus-x11
  # The Debian package and its check; a StatusNotifierItem tray host for the end-to-end test.
  dpkg-dev file lintian desktop-file-utils appstream
  haskell-status-notifier-item-utils haskell-gtk-sni-tray-utils libglib2.0-bin
  # The tray finds an XEmbed tray manager through the X connection.
  libxcb1-dev
  # The client on Wayland (weston's headless backend), driven through the accessibility tree.
  qt6-wayland weston at-spi2-core python3-pyatspi
  # The Debian 13 root for the build and tests against its newer Qt.
  mmdebstrap
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [[ ${#missing[@]} -eq 0 ]]; then
  exit 0
fi

echo "Installing missing packages: ${missing[*]}"
sudo=()
if [[ $(id -u) -ne 0 ]]; then sudo=(sudo); fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
