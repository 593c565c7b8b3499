#!/usr/bin/env bash
# submit_example.sh BUILD: starts the practice web of that build and submits the example project to it, which prints
# the report's path. Everything that is written stays in BUILD/home.
set -euo pipefail

build=$(readlink -f "$1")
home=$build/home
project=$home/Projects/Example.rts
export XDG_CONFIG_HOME=$home/config
mkdir -p "$home/Projects"

# The address in the site database is fixed, so a practice web that already runs there serves as well.
if ! (exec 3<>/dev/tcp/127.0.0.1/8571) 2>/dev/null; then
    coproc park { exec "$build/bin/lanterra-park"; }
    trap 'kill "$park_PID" 2>/dev/null || true' EXIT
    read -r address <&"${park[0]}"
    echo "Practice web: $address"
fi

cli=("$build/bin/lanterra-cli" --home "$home")
mapfile -t fields < <(grep -vE '^[[:space:]]*(#|$)' "$home/example_project.txt")
"${cli[@]}" new "$project" "${fields[@]}" --yes
"${cli[@]}" category "$project" --keyword shop
"${cli[@]}" select "$project" --all
"${cli[@]}" submit "$project"
"${cli[@]}" top "$project" --timeout 5
