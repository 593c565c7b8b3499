#!/usr/bin/env bash
# run_faults.sh PROGRAM: makes every writing system call of every operation go wrong, in every mode, with the program
# lanterra-faults, and prints a table of the calls that were hit. Fails if any of them did damage, and also where
# processes may not be traced: nothing would have been tested.
set -euo pipefail

program=$(readlink -f "$1")
operations=(create save save-as category stats-row close settings recent)
modes=(kill once-full once-io on-full on-io)

if ! strace -qq -o /dev/null -e trace=none true; then
    echo "strace is missing or may not trace: install it, and allow ptrace." >&2
    exit 1
fi
# Only what reaches the kernel counts, so a folder in memory serves, and is faster.
[ -w /dev/shm ] && export TMPDIR=/dev/shm

results=$(mktemp)
trap 'rm -f "$results"' EXIT
status=0
for operation in "${operations[@]}"; do
    printf '%s\n' "${modes[@]/#/$operation }"
done | xargs -P "$(nproc)" -L 1 "$program" >"$results" || status=1

printf '%-10s' operation "${modes[@]}"
echo
for operation in "${operations[@]}"; do
    printf '%-10s' "$operation"
    for mode in "${modes[@]}"; do
        printf '%-10s' "$(awk -v o="$operation" -v m="$mode" '$1 == o && $2 == m { print $3 }' "$results")"
    done
    echo
done
awk -v wanted=$((${#operations[@]} * ${#modes[@]})) '
    { steps += $3; faults += $4; hunts += $3 > 0 }
    END {
        printf "%d calls hit, %d faults\n", steps, faults
        exit faults > 0 || hunts < wanted
    }' "$results" || status=1
exit $status
