#!/usr/bin/env bash
# Installs what veroxia needs on a Debian machine and builds it into build/.
# Run as root (or with sudo) on a fresh machine; on a set-up one it only builds.
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(
  g++ cmake ninja-build pkg-config  # compiler and build
  qt6-base-dev                      # Qt 6 Core, Gui, Widgets, Print Support (and the picture plugins)
  qt6-tools-dev qt6-l10n-tools      # lrelease: our Greek translation of Qt's own dialogs
  libsqlcipher-dev                  # SQLite with encryption: the declaration store
  libgtest-dev libgmock-dev         # the tests
  libbenchmark-dev                  # the benchmarks in bench/
  fonts-dejavu-core                 # a font with Greek glyphs
  fonts-liberation                  # Liberation Mono: the printouts' monospaced Greek font
  poppler-utils                     # pdftotext: the tests read the printed PDF back
)
if ! dpkg -s "${packages[@]}" >/dev/null 2>&1; then
  sudo_cmd=""
  [ "$(id -u)" -eq 0 ] || sudo_cmd="sudo"
  $sudo_cmd apt-get update
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y --no-install-recommends "${packages[@]}"
fi

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j "$(nproc)"
