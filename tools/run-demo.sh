#!/usr/bin/env bash
# Starts the demo host: in a window when a display is there, otherwise offscreen, where it plays
# its built-in scenario and leaves screenshots and a command journal under build/demo-output.
# Arguments after the demo's path go to the demo (for instance --verbose).
set -euo pipefail
demo="$1"
shift
out="$(pwd)/build/demo-output"
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec "$demo" "$@"
fi
mkdir -p "$out"
QT_QPA_PLATFORM=offscreen "$demo" --scenario --output "$out" "$@"
echo "No display: the demo ran its scenario offscreen; screenshots and journal are in $out"
