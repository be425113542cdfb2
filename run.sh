#!/usr/bin/env bash
# Installs what is missing, builds, prepares the application folder and starts TorviEditor. Without a
# display it exports the sample delivery instead and shows what came out.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

scripts/pacchetti.sh
cmake --preset release >/dev/null
cmake --build --preset release --target TorviEditor torvi
cartella=$PWD/build/release/bin
scripts/prepara.sh "$cartella"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$cartella/TorviEditor"
fi
echo
echo "Non c'è uno schermo (no display): esporto la consegna d'esempio con torvi."
exec scripts/mostra.sh "$cartella"
