# Completion of terrafold and terrafold-cli for bash.

_terrafold_files() { # of these extensions, and directories
    local IFS=$'\n'
    compopt -o filenames 2>/dev/null
    COMPREPLY=($(compgen -d -- "$cur"))
    local pattern="$1"
    [ -z "$pattern" ] || COMPREPLY+=($(compgen -f -X "!$pattern" -- "$cur"))
}

_terrafold() {
    local cur=${COMP_WORDS[COMP_CWORD]}
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '--help -h --version' -- "$cur"))
    else
        _terrafold_files '*.@(lwm|LWM)'
    fi
}

_terrafold_cli() {
    local cur=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]} options=
    if [ "$COMP_CWORD" -eq 1 ]; then
        COMPREPLY=($(compgen -W 'generate restore-outputs play resave info texture --help -h --version' -- "$cur"))
        return
    fi
    case $before in
        --app-path | --output-dir) _terrafold_files ''; return ;;
        --language) COMPREPLY=($(compgen -W 'FR US' -- "$cur")); return ;;
        --canvas) return ;;
        --palette) _terrafold_files '*.@(pal|PAL)'; return ;;
        --journal) _terrafold_files '*.jnl'; return ;;
    esac
    case $command in
        generate) options='--app-path --language --create --output-dir --dry-run --sources-only --json' ;;
        restore-outputs) options='--app-path --language --create' ;;
        play) options='--app-path --language --create --canvas --journal' ;;
        texture) options='--palette' ;;
    esac
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$options" -- "$cur"))
    elif [ "$command" = play ]; then
        _terrafold_files '*'
    elif [ "$command" = texture ]; then
        _terrafold_files '*.@(bmp|BMP|r8|R8)'
    else
        _terrafold_files '*.@(lwm|LWM)'
    fi
}

shopt -s extglob
complete -F _terrafold terrafold
complete -F _terrafold_cli terrafold-cli
