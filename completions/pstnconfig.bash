# Completes pstnconfig in bash.

# Offers files with one of these endings, and folders. Where there are none, readline offers all files.
_pstnconfig_files() { # WORD ENDING...
    local word=$1 ending
    shift
    compopt -o filenames -o default
    mapfile -t COMPREPLY < <(
        for ending; do compgen -f -X "!*.$ending" -- "$word"; done
        compgen -d -- "$word"
    )
}

# The rules that the program knows; with "disable", only those that it may leave out.
_pstnconfig_rules() { # PROGRAM [disable]
    "${1/#\~/$HOME}" check --list-rules 2>/dev/null | awk -v which="${2-}" 'which == "" || $2 != "error" { print $1 }'
}

_pstnconfig() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb='' options listed=''
    # To readline, --option=value is three words.
    if [[ $word == = ]]; then
        word=''
    elif [[ $before == = ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    ((COMP_CWORD > 1)) && verb=${COMP_WORDS[1]}

    COMPREPLY=()
    case $verb:$before in
        *:--color) options="auto always never" ;;
        check:--format) options="text json sarif" ;;
        diff:--format) options="text json" ;;
        check:--log-level) options="TRACE DEBUG INFO WARN ERROR OFF" ;;
        check:--explain) options=$(_pstnconfig_rules "$1") ;;
        check:--disable) # RULE,RULE
            [[ $word == *,* ]] && listed=${word%,*},
            options=$(_pstnconfig_rules "$1" disable)
            ;;
        check:--parameters) compopt -o default && return ;;
        *:--schema) _pstnconfig_files "$word" rng && return ;;
        map:--output | map:-o) _pstnconfig_files "$word" svg html && return ;;
        :*)
            options="check show diff map"
            [[ $word != -* ]] || options="-h --help --version"
            ;;
        *)
            [[ $word == -* ]] || { _pstnconfig_files "$word" xml && return; }
            options="-h --help --schema "
            case $verb in
                check)
                    options+="--parameters --format --source --no-source --color --all --strict -q --quiet --disable
                              --list-rules --explain --log-level --log-content"
                    ;;
                show) options+="--json --memory" ;;
                diff) options+="--format" ;;
                map) options+="-o --output --color" ;;
            esac
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -P "$listed" -W "$options" -- "${word##*,}")
}

complete -F _pstnconfig pstnconfig
