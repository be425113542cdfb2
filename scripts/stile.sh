#!/usr/bin/env bash
# Checks the layout of all sources (clang-format) and looks for what is better written otherwise
# (clang-tidy). Run by hand before a change goes in; `scripts/stile.sh --correggi` mends the layout.
# usage: scripts/stile.sh [--correggi] [FILE...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/pacchetti.sh prove stile
modo=(--dry-run --Werror)
if [ "${1:-}" = --correggi ]; then
  modo=(-i)
  shift
fi
if [ $# -gt 0 ]; then
  sorgenti=("$@")
else
  mapfile -t sorgenti < <(git ls-files --cached --others --exclude-standard 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp')
fi
clang-format "${modo[@]}" "${sorgenti[@]}"

# Generated headers are made by a build; clang-tidy cannot read another compiler's precompiled ones.
cmake --preset dev -B build/stile -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
cmake --build build/stile
printf '%s\n' "${sorgenti[@]}" | grep '\.cpp$' |
  xargs -P "$(nproc)" -n 1 clang-tidy --quiet -p build/stile
