#!/usr/bin/env bash
# Makes the pictures of docs/manuale.md: an operator's session on a virtual screen, by keys alone.
# usage: scripts/schermate.sh [FOLDER OF THE BUILT PROGRAMS]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/pacchetti.sh schermate
programmi=${1:-build/release/bin}
immagini=$PWD/docs/immagini
lavoro=$(mktemp -d /tmp/torvi.XXXX)
cartella=$lavoro/TorviEditor
mkdir -p "$lavoro/operatore"
processi=()
pulisci() {
  for processo in "${processi[@]}"; do kill "$processo" 2>/dev/null || true; done
  rm -rf "$lavoro"
}
trap pulisci EXIT

mkdir -p "$cartella" "$immagini"
cp "$programmi/TorviEditor" "$programmi/torvi" "$cartella/"
scripts/prepara.sh "$cartella"
echo "Questo file non è un archivio." >"$cartella/mdb/appunti.mdb"

mkfifo "$lavoro/schermo"
Xvfb -displayfd 1 -screen 0 1100x760x24 >"$lavoro/schermo" 2>/dev/null &
processi+=($!)
read -r numero <"$lavoro/schermo"
export DISPLAY=:$numero HOME=$lavoro/operatore LANG=it_IT.UTF-8 QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
openbox >/dev/null 2>&1 &
processi+=($!)
sleep 1

# Waits until a window with that title is there and has the focus.
finestra() {
  for _ in $(seq 100); do
    if [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; then
      sleep 0.4
      return
    fi
    sleep 0.1
  done
  echo "schermate: la finestra \"$1\" non si è aperta" >&2
  exit 1
}
tasti() { xdotool key --delay 150 "$@"; sleep 0.3; }
scrivi() { xdotool type --delay 40 "$1"; sleep 0.3; }
immagine() { import -window root png:- | convert - -trim +repage "$immagini/$1.png"; }

"$cartella/TorviEditor" 2>"$lavoro/messaggi" &
processi+=($!)
finestra "Editore Torvi"
xdotool getactivewindow windowsize --sync 900 560
immagine avvio
tasti alt+f
immagine menu_file

tasti n
finestra "Nuovo archivio"
scrivi b01
tasti Return
finestra "Nuovo archivio"
immagine nuovo_conferma
tasti Return
finestra "Informazione consegna"
scrivi A
tasti Tab Down Down Tab
scrivi b01
tasti Tab
scrivi 1
immagine informazione
tasti Return
finestra "Editore Torvi"

tasti alt+f a
finestra "Apri archivio"
immagine apri
scrivi A01.MDB
tasti Return
aperto="Torvi Editor ($cartella/mdb/A01.MDB)"
finestra "$aperto"
tasti alt+e f
immagine aperto

tasti i
finestra "Esportazione per ISIS"
immagine controllo_fonti
tasti s
finestra "Esportazione"
immagine accoda
tasti n
finestra "TorviEditor"
immagine fine_esportazione
tasti Return
finestra "$aperto"

tasti alt+e e g
finestra "Visualizzazione errori"
immagine errori
tasti Escape
finestra "$aperto"

tasti alt+e f c
finestra "Esportazione per ISIS"
tasti n
finestra "Esportazione"
tasti s
finestra "Scelta file di uscita"
tasti Down space
immagine scelta_file
tasti alt+a
finestra "TorviEditor"
tasti Return
finestra "$aperto"

tasti alt+e f c
finestra "Esportazione per ISIS"
tasti n
finestra "Esportazione"
tasti s
finestra "Scelta file di uscita"
tasti alt+a
finestra "TorviEditor"
immagine errore_runtime
tasti Return
finestra "$aperto"

tasti alt+f c alt+f a
finestra "Apri archivio"
scrivi appunti.mdb
tasti Return
finestra "TorviEditor"
immagine non_archivio
tasti Return
finestra "$aperto"
tasti alt+f e
finestra "TorviEditor"
immagine esci
tasti Return
ls "$immagini"
