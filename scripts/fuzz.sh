#!/usr/bin/env bash
# Gives the readers random input for a while each, beginning with the seeds of tests/dati/fuzz. What
# breaks one is left in build/fuzz/guasti: mend the reader, and keep the input as a seed.
# usage: scripts/fuzz.sh [SECONDS [READER...]]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/pacchetti.sh fuzz
cmake --preset fuzz >/dev/null
nice cmake --build --preset fuzz
secondi=${1:-60}
shift $(($# > 0))
[ $# -gt 0 ] || set -- jet traduttore sigle json csv
mkdir -p build/fuzz/guasti
for lettore in "$@"; do
  echo "$lettore"
  mkdir -p "build/fuzz/corpo/$lettore"
  nice "build/fuzz/bin/fuzz_$lettore" -max_total_time="$secondi" -timeout=10 -rss_limit_mb=1024 \
    -max_len=4096 -print_final_stats=1 -verbosity=0 -artifact_prefix="build/fuzz/guasti/$lettore-" \
    "build/fuzz/corpo/$lettore" "tests/dati/fuzz/$lettore" 2>&1 | grep -v '^INFO'
done
