#!/usr/bin/env bash
# Installs what building, testing and running the demo need on a Debian 12 machine.
# Idempotent: packages already present are left alone; sudo is used only when not root.
set -euo pipefail

packages=(
    build-essential cmake make
    qtbase5-dev qtbase5-dev-tools qttools5-dev qttools5-dev-tools qttranslations5-l10n libqt5svg5-dev
    libgl1-mesa-dev
    fonts-dejavu-core xvfb xauth
    clang-format clang-tidy
)

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

SUDO=""
if [ "$(id -u)" -ne 0 ]; then
    SUDO="sudo"
fi

echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
