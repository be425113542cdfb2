#!/usr/bin/env bash
# Exports the sample delivery of an application folder and shows the first record and how many lines
# the error files have.
# usage: scripts/mostra.sh CARTELLA
set -euo pipefail

cartella=${1:?usage: scripts/mostra.sh CARTELLA}
"$cartella/torvi" --cartella "$cartella" esporta isis "$cartella/mdb/A01.MDB"
uscita="$cartella/dump/lexxdump isis.A01"

echo
echo "Il primo documento di \"dump/lexxdump isis.A01\" (⌂ è il byte 0x06):"
echo
# A record ends where the next identifier stands alone on its line.
sed -E '1!{/^[0-9]{4}[1-9A-Z][0-9]{4,}\r$/Q}' "$uscita" |
  iconv -f CP850 -t UTF-8 | tr -d '\r' | sed 's/\x06/⌂/g'

echo
echo "Righe nei file degli errori:"
for file in errori errClasse errFonte; do
  printf '  dump/%-14s %4d\n' "$file.A01" "$(grep -c $'[^\r]' "$cartella/dump/$file.A01" || true)"
done
