#!/usr/bin/env bash
# Prints the manual page of lanterra-cli: the template, with the help of every command, as the program itself gives it,
# in the place of the line .\" COMMANDS.
#
#   tools/make_manual.sh PROGRAM TEMPLATE
set -euo pipefail
program=$1
template=$2

# Text of the program as roff: nothing in it is a request or an escape.
literal() {
    sed -e 's/\\/\\e/g' -e 's/-/\\-/g' -e "s/^\([.']\)/\\\\\&\1/"
}

commands() {
    local command
    "$program" help | sed -En '/^Commands:/,/^$/ s/^  ([a-z0-9]+) .*/\1/p' | while read -r command; do
        [ "$command" != help ] || continue
        printf '.SS %s\n.nf\n' "$command"
        "$program" help "$command" | literal
        printf '.fi\n'
    done
}

sed '/^\.\\" COMMANDS$/Q' "$template"
commands
sed '1,/^\.\\" COMMANDS$/d' "$template"
