#!/usr/bin/env bash
# Installs every Debian package the build, the application, the tests and the benchmarks need.
set -euo pipefail

packages=(
  # build
  cmake g++ ninja-build pkg-config python3
  # Qt 6 toolkit
  qt6-base-dev qt6-base-dev-tools qt6-declarative-dev qt6-declarative-dev-tools qt6-svg-dev
  qt6-qpa-plugins libqt6sql6-sqlite libqt6svg6 libgl-dev
  qml6-module-qtqml qml6-module-qtqml-workerscript qml6-module-qtqml-models
  qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-controls
  qml6-module-qtquick-templates qml6-module-qtquick-layouts qml6-module-qtquick-dialogs
  qml6-module-qt-labs-folderlistmodel
  qml6-module-qtquick-shapes qml6-module-qtqml-models qml6-module-qttest qml6-module-qtcore
  # fonts: a metric-compatible "Arial" and a few reading families
  fontconfig libfontconfig-dev fonts-liberation2 fonts-dejavu-core fonts-ebgaramond fonts-linuxlibertine fonts-sil-charis
  # desktop services, a real window without a display, benchmarks
  xdg-utils xvfb xauth libbenchmark-dev
)

SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ "${#missing[@]}" -gt 0 ]; then
  $SUDO apt-get update
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y --no-install-recommends "${missing[@]}"
fi
