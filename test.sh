#!/usr/bin/env bash
# Installs what is missing, builds and runs all tests.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

scripts/pacchetti.sh prove
cmake --preset dev >/dev/null
cmake --build --preset dev
registro=build/dev/prove.txt
esito=0
ctest --preset dev -j "$(nproc)" >"$registro" 2>&1 || esito=$?
if [ "$esito" -ne 0 ]; then cat "$registro"; else sed -n '/tests passed/,$p' "$registro"; fi
exit "$esito"
