#!/usr/bin/env bash
# Every source file that yields to the event queue stands in docs/yields.md.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

faults=0
while read -r file; do
    grep -q "\`${file#src/}\`" docs/yields.md || { echo "$file yields and is not in docs/yields.md"; faults=1; }
done < <(grep -rlE '\b[qQ]ueue\.(Yield|Wait)\(' src --include='*.cpp')
exit $faults
