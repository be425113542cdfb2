#!/usr/bin/env bash
# Installs the Debian 12 packages that are missing, quietly when none is.
# usage: scripts/pacchetti.sh [prove] [misure] [schermate] [stile] [fuzz]
set -euo pipefail

# Everything the program is built and run with.
pacchetti=(g++ cmake ninja-build pkgconf qt6-base-dev qt6-qpa-plugins libqt6svg6
  libsqlitecpp-dev libsqlite3-dev mdbtools-dev libglib2.0-dev libhunspell-dev hunspell-it
  hunspell-en-us libgtest-dev fonts-dejavu-core)
prove=(sqlite3 util-linux)
misure=(sqlite3 mdbtools time python3 libbenchmark-dev)
schermate=(xvfb openbox xdotool imagemagick)
stile=(clang-format clang-tidy)
fuzz=(clang libclang-rt-14-dev)

for gruppo in "$@"; do
  case $gruppo in
    prove) pacchetti+=("${prove[@]}") ;;
    misure) pacchetti+=("${misure[@]}") ;;
    schermate) pacchetti+=("${schermate[@]}") ;;
    stile) pacchetti+=("${stile[@]}") ;;
    fuzz) pacchetti+=("${fuzz[@]}") ;;
    *) echo "pacchetti.sh: gruppo sconosciuto: $gruppo" >&2; exit 2 ;;
  esac
done

manca() {
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" != installed ]
}
mancanti=()
for pacchetto in "${pacchetti[@]}"; do
  if manca "$pacchetto"; then mancanti+=("$pacchetto"); fi
done
[ ${#mancanti[@]} -gt 0 ] || exit 0

echo "Installo i pacchetti mancanti: ${mancanti[*]}"
comando=(env DEBIAN_FRONTEND=noninteractive apt-get)
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Mancano dei pacchetti e non c'è sudo (missing packages, no sudo). Da amministratore:" >&2
    echo "  apt-get install ${mancanti[*]}" >&2
    exit 1
  fi
  comando=(sudo "${comando[@]}")
fi
if ! { "${comando[@]}" update -qq &&
       "${comando[@]}" install -y -qq --no-install-recommends "${mancanti[@]}" >/dev/null; }; then
  echo "Non riesco a installare (cannot install): ${mancanti[*]}" >&2
  exit 1
fi
