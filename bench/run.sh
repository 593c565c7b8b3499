#!/usr/bin/env bash
# Measures all figures of the run side by side, medians of several runs each, and prints them as a table. Everything
# stays on this machine. Installs what is missing.
#
#   bench/run.sh [RUNS]     RUNS is 5 if not given
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

runs=${1-5}
mapfile -t packages < <(cat tools/packages.txt tools/bench_packages.txt | grep -v '^#')
tools/install_packages.sh "${packages[@]}"
cmake --preset bench >/dev/null
cmake --build --preset bench >/dev/null

build=$PWD/build/bench
work=$(mktemp -d "$build/work.XXXXXX")
parks=()
trap 'kill "${parks[@]}" 2>/dev/null || true; rm -rf "$work"' EXIT
export XDG_CONFIG_HOME=$work/config
cli=$build/bin/lanterra-cli
measure=$build/bin/bench_measure

# start_park VARIABLE OPTION...: a practice web on a port of its own; VARIABLE takes its address.
start_park() {
    local log=$work/park-${#parks[@]}
    "$build/bin/lanterra-park" --port 0 "${@:2}" >"$log" &
    parks+=($!)
    until grep -q http "$log"; do read -rt 0.05 <> <(:) || true; done
    printf -v "$1" %s "$(grep -o 'http://[^/]*/' "$log")"
}

# make_project NAME COUNT LIMIT ADDRESS [LAST_ADDRESS]: a folder of a program with one project of all these sites.
make_project() {
    local home=$work/$1
    mkdir -p "$home"
    bench/make_sites.sh "$2" "${@:4}" >"$home/sites.json"
    "$cli" sitedb build "$home/sites.json" "$home/ng.dll" >/dev/null
    local fields
    mapfile -t fields < <(grep -vE '^[[:space:]]*(#|$)' data/example_project.txt)
    "$cli" --home "$home" new "$home/p.rts" "${fields[@]}" "txtLimit=$3" >/dev/null
    "$cli" --home "$home" select "$home/p.rts" --all >/dev/null
}

# measure_submit NAME [OPTION...]: wall time, processor time and peak memory of submitting a project.
measure_submit() { "$measure" "$runs" "$cli" --home "$work/$1" submit "$work/$1/p.rts" --json "${@:2}"; }

# median_ms COMMAND...: the median of the "milliseconds" that several runs of a command print.
median_ms() {
    for ((i = 0; i < runs; i++)); do
        "$@" | grep -oE '"milliseconds": *[0-9]+' | grep -oE '[0-9]+'
    done | sort -n | sed -n "$(((runs + 1) / 2))p"
}

# First dispatch to last verdict of a project.
dispatch_ms() { median_ms "$cli" --home "$work/$1" submit "$work/$1/p.rts" --json; }

# make_engines NAME COUNT ADDRESS: the engine file of a project's folder.
make_engines() {
    for ((i = 1; i <= $2; i++)); do
        printf 'Search engine\r\nName=Engine %d\r\nSearch=%s\r\nReferer=%s\r\n' "$i" "$3" "$3"
        printf 'Submit=%s?url=[url]&mail=[email]&who=[name]\r\n\r\n' "$3"
    done | "$cli" cipher encipher --key plavac >"$work/$1/engine.dat"
}

# curl_config NAME FILE: the requests of a project, as `preview --curl` tells them, as one configuration for curl's
# parallel mode.
curl_config() {
    local line number=0 folder=$work/$1
    while IFS= read -r line; do
        [[ $line == 'curl '* ]] || continue
        number=$((number + 1))
        eval "set -- ${line#curl }"
        while (($#)); do
            case $1 in
            -H | --noproxy | --data-binary)
                printf '%s = "%s"\n' "$(sed 's/^-H$/header/; s/^--//' <<<"$1")" "${2//\"/\\\"}"
                shift
                ;;
            -*) printf '%s\n' "${1#--}" ;;
            *) printf 'url = "%s"\n' "$1" ;;
            esac
            shift
        done
        printf 'output = "%s/%d.htm"\nnext\n' "$folder" "$number"
    done < <("$cli" --home "$work/$1" preview "$work/$1/p.rts" --curl) >"$2"
}

row() { printf '| %-58s | %14s | %-22s |\n' "$@"; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }

start_park quick
start_park slow --latency 200
quick_form=${quick}behave/plain
silent_form=${quick}behave/silence

row "What" "measured" "to reach"
row "---" "---:" "---"

# 500 sites that answer at once and close each connection, beside curl with the same requests.
make_project quick 500 45 "$quick_form"
curl_config quick "$work/curl.txt"
curl_command=(curl --silent --parallel --parallel-immediate --parallel-max 5 --config "$work/curl.txt")
ours=$(dispatch_ms quick)
read -r _ our_cpu our_peak < <(measure_submit quick)
read -r curl_wall curl_cpu _ < <("$measure" "$runs" "${curl_command[@]}")
row "500 sites, first dispatch to last verdict" "$ours ms" ""
row "curl, the same requests" "$curl_wall ms" ""
row "ratio of both" "$(ratio "$ours" "$curl_wall")" "1.0"
row "processor time of the whole command" "$our_cpu ms" ""
row "curl's" "$curl_cpu ms" ""
row "ratio of both" "$(ratio "$our_cpu" "$curl_cpu")" "2.0"

# 500 sites at 200 ms: five channels can't be faster than 20 s.
make_project slow 500 45 "${slow}behave/plain"
slow_ms=$(dispatch_ms slow)
row "500 sites at 200 ms latency, over the ideal 20 s" "$(ratio "$slow_ms" 20000)" "1.02"

# Ten URLs, each with a run over 100 sites at 50 ms: a job can't be faster than ten times a second.
start_park near --latency 50
make_project urls 100 45 "${near}behave/plain"
"$cli" --home "$work/urls" set "$work/urls/p.rts" chkMultiSameDesc=1 >/dev/null
"$cli" --home "$work/urls" urls "$work/urls/p.rts" "${quick}"page{0..9} >/dev/null
read -r urls_wall _ _ < <(measure_submit urls --urls)
row "job over ten URLs and 100 sites at 50 ms, over ten seconds" "$(ratio "$urls_wall" 10000)" "1.03"

# 13 engines at 300 ms: the spider's five can't be faster than three rounds.
start_park late --latency 300
make_project engines 1 45 "$quick_form"
make_engines engines 13 "${late}behave/plain"
engines_ms=$(median_ms "$cli" --home "$work/engines" top "$work/engines/p.rts" --json)
row "13 top engines at 300 ms latency, over the ideal 0.9 s" "$(ratio "$engines_ms" 900)" "1.1"

# Five sites that never answer: the processor time of waiting ten seconds more.
make_project wait1 5 1 "$silent_form"
make_project wait11 5 11 "$silent_form"
read -r _ short_cpu _ < <(measure_submit wait1)
read -r _ long_cpu _ < <(measure_submit wait11)
row "processor time of waiting, share of a core" \
    "$(awk -v a="$long_cpu" -v b="$short_cpu" 'BEGIN { printf "%.3f %%", (a - b) / 100 }')" "0.5 %"

# Memory with and without one answer of 60 MiB.
make_project big 500 45 "$quick_form" "${quick}behave/60-mib"
read -r _ _ big_peak < <(measure_submit big)
row "peak memory, 500 sites" "$((our_peak / 1024)) MiB" "40 MiB"
row "more with one answer of 60 MiB" "$((big_peak - our_peak)) KiB" "1024 KiB"

read -r version_wall _ _ < <("$measure" 21 "$cli" --version)
read -r smallest_wall _ _ < <("$measure" 21 "$build/bin/bench_smallest_qt")
row "start of lanterra-cli --version" "$version_wall ms" ""
row "start of the smallest Qt program" "$smallest_wall ms" ""
row "ratio of both" "$(ratio "$version_wall" "$smallest_wall")" "2"

# The window, drawn in memory, without the time that a screen of its own would add to both sides of a comparison.
export QT_QPA_PLATFORM=offscreen
printf '[Settings]\nch="1"\nLoadLastProject="0"\n' >"$XDG_CONFIG_HOME/Lanterra.ini"
read -r window_wall _ _ < <("$measure" 21 "$build/bin/bench_window" start "$work/quick/p.rts")
read -r smallest_wall _ _ < <("$measure" 21 "$build/bin/bench_smallest_window")
row "start of the window with 500 sites, to the first painting" "$window_wall ms" ""
row "the smallest Qt program with a main window" "$smallest_wall ms" ""
row "the difference of both" "$(awk -v a="$window_wall" -v b="$smallest_wall" 'BEGIN { print a - b }') ms" "150 ms"

# window_figure WHAT PROJECT: the median of what several processes of the window print.
window_figure() {
    for ((i = 0; i < runs; i++)); do
        "$build/bin/bench_window" "$1" "$work/$2/p.rts" 2>/dev/null
    done | sort -n | sed -n "$(((runs + 1) / 2))p"
}

make_project many 5000 45 "$quick_form"
row "longest time without a turn of the queue, run of 500" "$(window_figure gap quick) ms" "30 ms"
row "\"Select All\" over 5,000 sites" "$(window_figure select many) ms" "50 ms"
row "memory after 100 runs, more than after 1" "$(window_figure memory quick) KiB" "2048 KiB"
row "statistics pane with 10,000 sessions" "$(window_figure statistics quick) ms" "100 ms"

# One line a figure: the text cipher beside a plain XOR loop over the same generator.
cipher_speed() {
    "$build/bin/bench_cipher" --benchmark_filter="$1" --benchmark_format=csv 2>/dev/null |
        awk -F, 'END { print $6 / 1048576 }'
}
plain_speed=$(cipher_speed PlainXor)
row "enciphering, over the speed of a plain XOR loop" "$(ratio "$(cipher_speed Encipher)" "$plain_speed")" "0.5"
row "deciphering, over that speed" "$(ratio "$(cipher_speed Decipher)" "$plain_speed")" "0.5"

echo
(cd "$build" && bin/bench_project --benchmark_repetitions="$runs" --benchmark_report_aggregates_only=true 2>/dev/null |
    grep -E 'median|Benchmark')
