#!/usr/bin/env bash
# Fills an application folder that has the program in it: master archive, norm catalogue, a sample
# delivery, the templates of the prints, the folder of the outputs. What is there already stays as it is.
# usage: scripts/prepara.sh CARTELLA
set -euo pipefail

cartella=${1:?usage: scripts/prepara.sh CARTELLA}
torvi=$cartella/torvi
risorse=$(dirname "${BASH_SOURCE[0]}")/../risorse

mkdir -p "$cartella/mdb" "$cartella/dump"
[ -e "$cartella/mdb/master.mdb" ] || "$torvi" master "$cartella/mdb/master.mdb"
[ -e "$cartella/mdb/catalogo norme.mdb" ] || "$torvi" catalogo "$cartella/mdb/catalogo norme.mdb"
[ -e "$cartella/mdb/A01.MDB" ] ||
  "$torvi" --cartella "$cartella" esempio "$cartella/mdb/A01.MDB"
for testata in "testata new.rtf" "testata prospetto.rtf"; do
  [ -e "$cartella/$testata" ] || cp "$risorse/$testata" "$cartella/"
done
