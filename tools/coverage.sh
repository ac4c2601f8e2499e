#!/usr/bin/env bash
# Line and branch coverage of the hand-written library code (src/frame, src/convert, src/record,
# src/summary, src/codec/runtime; the generated codec is left out) under the whole test suite.
#   tools/coverage.sh          configure and build the preset "coverage" (build-coverage/),
#                              run the test suite there, then report with gcovr
#   tools/coverage.sh --report only the report, over the counters of the last run
# The summary goes to the terminal; build-coverage/coverage.txt has the figures per file and
# build-coverage/coverage/index.html the annotated sources. Branches that only the compiler
# adds for exceptions and those it can prove unreachable are not counted.
# Needs gcovr (Debian package gcovr): installed when missing and run as root.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! command -v gcovr >/dev/null 2>&1; then
  if [ "$(id -u)" -ne 0 ]; then
    echo "coverage: gcovr is missing; run as root or install it: apt-get install gcovr" >&2
    exit 1
  fi
  export DEBIAN_FRONTEND=noninteractive
  apt-get install -y --no-install-recommends gcovr || { apt-get update && apt-get install -y --no-install-recommends gcovr; }
fi

status=0
if [ "${1:-}" != "--report" ]; then
  launcher=()
  if command -v ccache >/dev/null 2>&1; then
    launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  fi
  cmake --preset coverage "${launcher[@]}"
  cmake --build --preset coverage
  # Counters of an earlier run would add to this one.
  find build-coverage -name '*.gcda' -delete
  ctest --preset coverage || status=$?
fi

mkdir -p build-coverage/coverage
filters=()
for d in src/frame src/convert src/record src/summary src/codec/runtime; do
  filters+=(--filter "$d/")
done
gcovr --root . build-coverage "${filters[@]}" -j 2 \
  --exclude-unreachable-branches --exclude-throw-branches \
  --txt build-coverage/coverage.txt \
  --html-details build-coverage/coverage/index.html \
  --print-summary
[ "$status" -eq 0 ] || echo "coverage: the test suite failed (ctest exit $status); the figures cover what ran" >&2
exit "$status"
