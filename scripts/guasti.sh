#!/usr/bin/env bash
# Kills every command that writes, and fills or breaks its disk, at each of its calls that write; ctest
# does it at a few. Prints what was found and how many kills and failing calls there were.
# usage: scripts/guasti.sh [COMMAND [MODE:CALL]]   COMMAND as the tests name it, MODE as chiamate.h does
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset dev >/dev/null
cmake --build --preset dev --target prova_guasti
[ $# -lt 2 ] || export GUASTI_UNO=$2
export GUASTI_TUTTI=1
# In memory, where there is room: nothing of what is written is meant to last.
lavoro=$(mktemp -d "$([ -w /dev/shm ] && echo /dev/shm || echo /tmp)/guasti.XXXX")
trap 'rm -rf "$lavoro"' EXIT

prova=build/dev/bin/prova_guasti
# A program a command, as many at once as there are processors.
mapfile -t comandi < <("$prova" --gtest_list_tests | sed -n "s|^  .*/\(${1:-[a-z_]*}\) .*|\1|p")
printf '%s\n' "${comandi[@]}" | TMPDIR=$lavoro xargs -P "$(nproc)" -I{} \
  sh -c "nice '$prova' --gtest_brief=1 --gtest_filter='*/{}' >'$lavoro/{}.txt' 2>&1 || true"
cat "$lavoro"/*.txt
awk '/ calls, .* kills, /{k += $4; f += $6} /^  [0-9]+ times: /{d += $1}
  END {printf "In all: %d kills, %d failing calls, %d faults\n", k, f, d; exit d > 0}' "$lavoro"/*.txt
