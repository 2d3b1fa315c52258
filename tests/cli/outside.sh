#!/usr/bin/env bash
# outside.sh CLI [WINDOW] - the programs as a shell sees them: without a screen, with output that can't
# be printed, and manual pages and completion that say what --help says.
set -euo pipefail
cd "$(dirname "$0")/../../packaging"
cli=$1 window=${2:-}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
export HOME=$scratch XDG_RUNTIME_DIR=$scratch
failed=0

# gives STATUS PATTERN COMMAND...: how it ends, and what it says on standard error, in one line
gives() {
    local wanted=$1 pattern=$2 status=0 said
    shift 2
    said=$(timeout 60 "$@" 2>&1 >"$scratch/out") || status=$?
    [ "$status" -eq "$wanted" ] && [[ $said == $pattern ]] && return
    echo "outside: $* ended with $status and said: $said" >&2
    failed=1
}

# same WHAT: two lists of words on descriptors 3 and 4
same() {
    diff /dev/fd/3 /dev/fd/4 >&2 && return
    echo "outside: $1 and --help do not agree" >&2
    failed=1
}

options() { grep -oE -- '(^|[^-a-z])--?[a-z]+(-[a-z]+)*' | grep -oE -- '--?[a-z]+(-[a-z]+)*' | sort -u; }
commands() { grep -oE 'terrafold-cli [a-z][a-z-]+' | sort -u; }
page() { sed -e 's/\\//g' -e 's/^\.[A-Z]* //' -e 's/[][",|]/ /g' -e 's/  */ /g' "man/$1.1"; }

full=/dev/full
[ ! -e "$full" ] || gives 1 '*could not be printed' bash -c "'$cli' --help >$full"
same 'terrafold-cli.1' 3< <(page terrafold-cli | options) 4< <("$cli" --help | options)
same 'terrafold-cli.1' 3< <(page terrafold-cli | commands) 4< <("$cli" --help | commands)
same 'the completion' 3< <(sed -n '/^_terrafold_cli/,/^}/p' terrafold.bash | grep -e '-W' -e 'options=' | options) \
    4< <("$cli" --help | options)
if [ -n "$window" ]; then
    gives 0 '' "$window" --version
    gives 2 '*unknown option --nope*' "$window" --nope
    gives 1 '*no display*terrafold-cli*' "$window" "$scratch/none.LWM"
    same 'terrafold.1' 3< <(page terrafold | options | grep -v -e -style -e -platform) \
        4< <("$window" --help | options)
fi
exit $failed
