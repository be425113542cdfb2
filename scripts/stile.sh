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
  mapfile -t sorgenti < <(git ls-files --cached --others --exclude-standard 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp' \
    'bench/*.cpp')
fi
clang-format "${modo[@]}" "${sorgenti[@]}"

# clang-tidy cannot read another compiler's precompiled headers, and wants of a build only the headers
# made from the forms. The *_autogen targets would compile the libraries first; what they run does not.
cmake --preset dev -B build/stile -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
find build/stile -name AutogenInfo.json -print0 |
  xargs -0 -I{} cmake -E cmake_autogen {} Debug
# bench/ is read only by the formatter: its library may be missing. What clang-tidy counts in the
# headers of the system is no news.
printf '%s\n' "${sorgenti[@]}" | sed -n '/^bench/d;/\.cpp$/p' |
  xargs -r -P "$(nproc)" -n 1 clang-tidy --quiet -p build/stile \
    2> >(grep -v ' warnings\? generated\.$' >&2 || true)
