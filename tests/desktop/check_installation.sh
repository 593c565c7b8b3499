#!/usr/bin/env bash
# Installs a build into a scratch folder and holds what is there against what a desktop, bash, man and the help window
# make of it.
#
#   check_installation.sh BUILD
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
failures=0

# check WHAT COMMAND ...: the command has to end well.
check() {
    local what=$1 output
    shift
    if ! output=$("$@" 2>&1); then
        echo "FAILED: $what${output:+$'\n'$output}"
        failures=$((failures + 1))
    fi
}

# The same for a tool that may be absent.
check_with() {
    if command -v "$2" >/dev/null; then
        check "$@"
    else
        echo "passed over: $1, as there is no $2"
    fi
}

same() { [ "$1" = "$2" ] || { printf 'wanted: %s\nis:     %s\n' "$1" "$2"; return 1; }; }

cmake --install "$1" --prefix "$prefix" >/dev/null
share=$prefix/share

while read -r file; do
    check "$file is installed" test -s "$prefix/$file"
done <"$here/installed.txt"

check_with "the desktop file" desktop-file-validate "$share/applications/lanterra.desktop"
check_with "the description for software centres" appstreamcli validate --no-net \
    "$share/metainfo/example.lanterra.lanterra.metainfo.xml"
check_with "the file type" update-mime-database "$share/mime"
check "a database of the program bears the mark of the file type" \
    same "$(sed -En 's/.*offset="68" value="0x(.*)".*/\1/p' "$share/mime/packages/lanterra.xml")" \
    "$(od -An -tx1 -j68 -N4 "$share/lanterra/ng.dll" | tr -d ' ')"
for page in "$share"/man/man1/*; do
    check "the manual page ${page##*/} draws no warning" same "" "$(groff -ww -man -z "$page" 2>&1)"
done
check "the manual tells of every command" \
    same "$("$prefix/bin/lanterra-cli" help | sed -En '/^Commands:/,/^$/ s/^  ([a-z0-9]+) .*/\1/p' | grep -vx help)" \
    "$(sed -En 's/^\.SS //p' "$share/man/man1/lanterra-cli.1")"

# The window lists the links of the index as contents, and follows the links of all pages.
help=$share/lanterra/help
check "the help file names the first page" test "$help/index.md" -ef "$share/lanterra/$(<"$share/lanterra/lanterra.hlp")"
links() { grep -oh '([a-z0-9-]*\.md)' "$@" | tr -d '()' | sort -u; }
check "the index of the help leads to every page" \
    same "$(cd "$help" && printf '%s\n' *.md | grep -vx index.md)" "$(links "$help/index.md")"
check "every link of the help leads to a page" same "" \
    "$(comm -13 <(cd "$help" && printf '%s\n' *.md | sort) <(links "$help"/*.md))"

# offers WANTED WORD ...: the wanted words, sorted, are offered for the last word of the line.
export PATH=$prefix/bin:$PATH LANTERRA_HOME=$share/lanterra
offers() {
    local wanted=$1
    shift
    same "$wanted" "$(
        # shellcheck source=/dev/null
        . "$share/bash-completion/completions/lanterra-cli"
        COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
        "$(complete -p "$1" | sed -E 's/.*-F ([^ ]+) .*/\1/')" 2>/dev/null
        printf '%s\n' "${COMPREPLY[@]-}" | sort | tr '\n' ' ' | sed 's/ $//'
    )"
}
cd "$prefix"
touch shop.rts shop.txt
lanterra-cli new fields.rts >/dev/null
check "commands are completed" offers "select" lanterra-cli sel
check "commands behind an option are completed" offers "urls" lanterra-cli --home x u
check "options of a command are completed" offers "--directories" lanterra-cli select shop.rts --d
check "projects are completed" offers "shop.rts" lanterra-cli set shop
check "all fields are completed" \
    offers "$(lanterra-cli show fields.rts | sed 's/=.*/=/' | sort | tr '\n' ' ' | sed 's/ $//')" lanterra-cli new a.rts ""
check "values of a field are completed" offers "Business" lanterra-cli set shop.rts Combo2 = B
check "tasks are completed" offers "decipher" lanterra-cli cipher d
check "the window's options are completed" offers "--help --home" lanterra --h
check "the practice web's options are completed" offers "--log" lanterra-park --lo

[ "$failures" = 0 ]
