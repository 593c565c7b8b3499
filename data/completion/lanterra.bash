# Completion of lanterra, lanterra-cli and lanterra-park in bash. Commands and options are those that the program itself
# tells of, so that this file doesn't age with them.

_lanterra_fields=(txtURL txtTitle txtDesc txtKey1 txtKey2 txtKey3 txtKey4 txtKey5 txtKey6 txtEmail txtName1 txtName2
    txtCompany txtStreet txtState txtCountry txtCity txtZip txtPhone txtFax txtLimit Combo2 txttrazim chkMultiSameDesc
    Check1 Check3)

# Offers the words of a list that begin with the word at the cursor.
_lanterra_offer() {
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "${COMP_WORDS[COMP_CWORD]}")
}

# Offers files, those that fit a pattern and folders.
_lanterra_offer_files() {
    local word=${COMP_WORDS[COMP_CWORD]}
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -X "!$1" -- "$word"; compgen -d -- "$word")
}

# The options that a help text lists, each at the beginning of its line.
_lanterra_options_of() {
    "$@" 2>/dev/null | sed -En 's/^ +(-[a-z], )?(--[a-z-]+).*/\2/p'
}

# The commands that lanterra-cli lists.
_lanterra_commands_of() {
    "$1" help 2>/dev/null | sed -En '/^Commands:/,/^$/ s/^  ([a-z0-9]+) .*/\1/p'
}

# Offers the values of one field, or the names of all fields, each with its "=".
_lanterra_offer_field() {
    local before=${COMP_WORDS[COMP_CWORD - 1]} field=${COMP_WORDS[COMP_CWORD - 2]}
    if [ "${COMP_WORDS[COMP_CWORD]}" = "=" ]; then
        before="=" field=${COMP_WORDS[COMP_CWORD - 1]} COMP_WORDS[COMP_CWORD]=
    fi
    case $before:$field in
    =:Combo2) _lanterra_offer "Miscellaneous Business Computers Education Entertainment Government Personal" ;;
    =:chkMultiSameDesc | =:Check1 | =:Check3) _lanterra_offer "0 1" ;;
    =:*) ;;
    *)
        compopt -o nospace 2>/dev/null
        _lanterra_offer "$(printf '%s= ' "${_lanterra_fields[@]}")"
        ;;
    esac
}

# Offers what may follow the command that stands at a place, the words behind it known.
_lanterra_offer_argument() {
    local command=${COMP_WORDS[$1]} first=$(($1 + 1))
    if [[ ${COMP_WORDS[COMP_CWORD]} == -* ]]; then
        _lanterra_offer "$(_lanterra_options_of "${COMP_WORDS[0]}" help "$command")"
    elif [ "$command" = help ]; then
        _lanterra_offer "$(_lanterra_commands_of "${COMP_WORDS[0]}")"
    elif [ "$command:$COMP_CWORD" = "sitedb:$first" ]; then
        _lanterra_offer "build dump check"
    elif [ "$command:$COMP_CWORD" = "cipher:$first" ]; then
        _lanterra_offer "encipher decipher"
    elif [[ $command == cipher || $command == search || $command == links ]]; then
        COMPREPLY=()
    elif [ "$command" = sitedb ]; then
        _lanterra_offer_files "*"
    elif [ "$COMP_CWORD" -eq "$first" ]; then
        _lanterra_offer_files "*.rts"
    elif [[ $command == new || $command == set ]]; then
        _lanterra_offer_field
    fi
}

_lanterra_cli() {
    local place=1
    while [ "$place" -lt "$COMP_CWORD" ]; do
        case ${COMP_WORDS[place]} in
        --home) place=$((place + 2)) ;;
        -*) place=$((place + 1)) ;;
        *)
            _lanterra_offer_argument "$place"
            return
            ;;
        esac
    done
    if [ "${COMP_WORDS[COMP_CWORD - 1]}" = --home ]; then
        _lanterra_offer_files "*/"
    elif [[ ${COMP_WORDS[COMP_CWORD]} == -* ]]; then
        _lanterra_offer "$(_lanterra_options_of "${COMP_WORDS[0]}" help)"
    else
        _lanterra_offer "$(_lanterra_commands_of "${COMP_WORDS[0]}")"
    fi
}

# For the programs without commands: options, and files of one kind.
_lanterra_plain() {
    local files=$1
    case ${COMP_WORDS[COMP_CWORD - 1]} in
    --home | --certificates) _lanterra_offer_files "*/" ;;
    --log) _lanterra_offer_files "*" ;;
    --colours) _lanterra_offer "light dark" ;;
    *)
        if [[ ${COMP_WORDS[COMP_CWORD]} == -* ]]; then
            _lanterra_offer "$(_lanterra_options_of "${COMP_WORDS[0]}" --help)"
        elif [ -n "$files" ]; then
            _lanterra_offer_files "$files"
        fi
        ;;
    esac
}

_lanterra_window() { _lanterra_plain "*.rts"; }
_lanterra_park() { _lanterra_plain ""; }

complete -F _lanterra_window lanterra
complete -F _lanterra_cli lanterra-cli
complete -F _lanterra_park lanterra-park
