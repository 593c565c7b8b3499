#!/usr/bin/env bash
# submit_example.sh BUILD: starts the practice web of that build and submits the example project to it, which prints
# the report's path. Everything that is written stays in BUILD/home.
#
#   submit_example.sh --window BUILD    opens the project in the window instead; the practice web ends with it
set -euo pipefail

window=
if [ "$1" = --window ]; then
    window=1
    shift
fi
build=$(readlink -f "$1")
home=$build/home
project=$home/Projects/Example.rts
cli=("$build/bin/lanterra-cli" --home "$home")
export XDG_CONFIG_HOME=$home/config

# The address in the site database is fixed, so a practice web that already runs there serves as well.
start_park() {
    (exec 3<>/dev/tcp/127.0.0.1/8571) 2>/dev/null && return
    coproc park { exec "$build/bin/lanterra-park"; }
    trap 'kill "$park_PID" 2>/dev/null || true' EXIT
    read -r address <&"${park[0]}"
    echo "Practice web: $address"
}

make_project() {
    local fields
    mkdir -p "$home/Projects"
    mapfile -t fields < <(grep -vE '^[[:space:]]*(#|$)' "$home/example_project.txt")
    "${cli[@]}" new "$project" "${fields[@]}" --yes
    "${cli[@]}" category "$project" --keyword shop
    "${cli[@]}" select "$project" --all
}

start_park
if [ "$window" ]; then
    [ -e "$project" ] || make_project >/dev/null # what was changed in the window stays
    "$build/bin/lanterra" --home "$home" "$project"
else
    make_project
    "${cli[@]}" submit "$project"
    "${cli[@]}" top "$project" --timeout 5
fi
