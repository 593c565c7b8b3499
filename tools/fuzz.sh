#!/usr/bin/env bash
# fuzz.sh BUILD SECONDS: runs every fuzz target of that build for so long, two at a time, and prints what each did.
# BUILD/corpus keeps the inputs that led somewhere new, for the next run; an input that breaks a target ends up in
# BUILD/findings.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

export build=$1 seconds=$2
# The targets write many small files, which need no disk.
[ -w /dev/shm ] && export TMPDIR=/dev/shm
export UBSAN_OPTIONS=print_stacktrace=1
# Freed blocks that the sanitizer holds back, and what breaks its heap into pieces, add up over a night. That is no
# finding, so the limit lies high; one large block is.
export ASAN_OPTIONS=quarantine_size_mb=32

fuzz_one() {
    local name=$1 log=$build/logs/$1.txt words=()
    [ -e "fuzz/dictionaries/$name.txt" ] && words=("-dict=fuzz/dictionaries/$name.txt")
    mkdir -p "$build/corpus/$name"
    if "$build/bin/fuzz_$name" -max_total_time="$seconds" -print_final_stats=1 \
        -timeout=20 -rss_limit_mb=4096 -malloc_limit_mb=256 -max_len=20000 \
        "-artifact_prefix=$build/findings/$name-" "${words[@]}" \
        "$build/corpus/$name" "fuzz/corpus/$name" >"$log" 2>&1; then
        echo "$name: $(awk '/number_of_executed_units/ {print $2}' "$log") executions, no finding"
    else
        echo "$name: FINDING"
        tail -n 40 "$log"
        return 1
    fi
}
export -f fuzz_one

mkdir -p "$build/logs" "$build/findings"
find fuzz/corpus -mindepth 1 -maxdepth 1 -printf '%f\n' | sort | xargs -P 2 -I {} bash -c 'fuzz_one {}'
