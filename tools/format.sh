#!/usr/bin/env bash
# format.sh check: lists the C++ files that clang-format would change, and fails if there are any.
# format.sh fix:   formats them in place.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files '*.cpp' '*.h')
case "${1:-check}" in
fix)
    clang-format -i "${files[@]}"
    ;;
check)
    bad=()
    for f in "${files[@]}"; do
        clang-format --dry-run -Werror "$f" > /dev/null 2>&1 || bad+=("$f")
    done
    if [ ${#bad[@]} -gt 0 ]; then
        printf 'not formatted (run "make format"):\n' >&2
        printf '  %s\n' "${bad[@]}" >&2
        exit 1
    fi
    ;;
*)
    echo "usage: $0 check|fix" >&2
    exit 2
    ;;
esac
