#!/usr/bin/env bash
# What the window's program says at a shell, where it needs no display or has none.
#
#   check_command_line.sh PROGRAM VERSION
set -u
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
program=$1
failures=0

# says EXIT_CODE FIRST_LINE ARGUMENT ...
says() {
    local code=$1 wanted=$2 output is
    shift 2
    output=$("$program" "$@" 2>&1)
    is=$?
    if [ "$is" != "$code" ] || [ "${output%%$'\n'*}" != "$wanted" ]; then
        printf 'lanterra %s\nwanted: [%s] %s\nis:     [%s] %s\n' "$*" "$code" "$wanted" "$is" "$output"
        failures=$((failures + 1))
    fi
}

says 0 "Usage: $program [options] [PROJECT.rts]" --help
says 0 "lanterra $2" --version
says 0 "lanterra $2" -v shop.rts
says 1 "lanterra: There is no display. Without one, use lanterra-cli."
says 1 "lanterra: There is no display. Without one, use lanterra-cli." shop.rts
says 2 "lanterra: One project at most. Help: lanterra --help" shop.rts cafe.rts
says 2 "lanterra: Unknown option 'wrong'. Help: lanterra --help" --wrong
says 2 "lanterra: Missing value after '--home'. Help: lanterra --help" --home

[ "$failures" = 0 ]
