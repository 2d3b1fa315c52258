#!/usr/bin/env bash
# faults.sh CLI STAND_IN FAULTS PROJECT
#
# Kills a save and a generation at each call by which they change files or start a tool, and has
# each of these calls fail, by the preloaded library FAULTS (faults.cpp). Whatever happens, what
# was there must still be there, told or not, and the next run must leave nothing of the last.
set -euo pipefail

cli=$1 stand_in=$2 faults=$3 project=$4
export SOURCE_DATE_EPOCH=1065268800
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"

fail() {
    echo "faults.sh: $*" >&2
    exit 1
}

# with AT HOW COMMAND ...: runs it with that fault; its exit status is in $status.
with() {
    status=0
    { # the shell would tell of each that is killed
        FAULT_AT=$1 FAULT_HOW=$2 FAULT_COUNT=$PWD/count LD_PRELOAD=$faults "${@:3}" \
            >printed 2>&1 || status=$?
    } 2>/dev/null
}

# small DIR: makes DIR and in it the project without its objects: squares, classes, altitudes.
small() {
    mkdir -p "$1/home" "$1/Classes" "$1/Raw"
    cd "$1"
    awk 'BEGIN { left = -1 }
         /^0120/ { left = -1 }
         /^0100/ { print "0100  1  1  0\r"; left = 9; next }
         left != 0 { print }
         left > 0 { --left }' "$project" |
        sed -E "s/\"(Raw|Classes|Island\.bmp|Island\.bgl|Island_Excl\.bgl)\"/\"${PWD//\//\\\\}\\\\\1\"/" >small.LWM
    for name in bglc tmfcompress tmf2bgl; do tool $name 'copy $1 $2'; done
    tool ResampleV11 'copy Temp/FicRaw.Raw Temp/landclass.tmf'
}

tool() { # tool NAME PLAN
    cp "$stand_in" "home/$1.exe"
    printf '%s\n' "$2" >"home/$1.exe.plan"
}

saves() {
    small "$scratch/saves"
    mkdir save
    "$cli" resave "$project" new.LWM >/dev/null
    # A name that needs care in every pattern.
    name=$'od[d]* \'name\' \xc3\xa9.LWM'
    for how in kill 5 28; do
        for ((at = 1, total = 1; at <= total; ++at)); do
            cp small.LWM "save/$name"
            with "$at" "$how" "$cli" resave new.LWM "save/$name"
            if cmp -s "save/$name" small.LWM; then
                [ "$status" != 0 ] || fail "save, call $at, $how: said to be saved, and is not"
            else
                cmp -s <(tail -n +3 "save/$name") <(tail -n +3 new.LWM) ||
                    fail "save, call $at, $how: the file is torn"
            fi
            with 0 0 "$cli" resave new.LWM "save/$name"
            total=$(cat count)
            [ "$(ls -A save)" = "$name" ] || fail "save, call $at, $how: left $(ls -A save)"
        done
    done
    echo "saves: $total calls, each killed and failed"
}

outputs="Island_Excl.bgl Island_2.bgl Island_3.bgl Classes/LC_043_045.bgl Classes/LC_044_045.bgl
         Classes/WC_043_045.bgl Classes/WC_044_045.bgl"

generate() {
    with "$1" "$2" "$cli" generate small.LWM --app-path home
}

is_made() {
    for output in $outputs; do cmp -s "$output" "made/$output" || return 1; done
}

generations() { # generations HOW
    small "$scratch/generations-$1"
    mkdir -p made/Classes
    generate 0 0
    for output in $outputs; do cp "$output" "made/$output"; done
    for ((at = 1, total = 1; at <= total; ++at)); do
        rm -rf home/Temp
        for output in $outputs; do echo "former $output" >"$output"; done
        generate "$at" "$1"
        [ "$status" != 0 ] || is_made || fail "generation, call $at, $1: said to be whole"
        for output in $outputs; do
            grep -rqsx "former $output" "$output" home/Temp/Former* ||
                fail "generation, call $at, $1: $output is lost"
        done
        "$cli" restore-outputs small.LWM --app-path home >/dev/null || true
        for output in $outputs; do
            cmp -s "$output" <(echo "former $output") ||
                fail "generation, call $at, $1: $output does not come back"
        done
        # The last of them tells how many calls a whole one has.
        if [ "$at" = "$total" ]; then
            generate 0 0
            [ "$status" = 0 ] && is_made || fail "generation after call $at, $1"
            total=$(cat count)
        fi
    done
    echo "generations: $total calls, $1"
}

# A second generation is refused while one runs; the tool ends with the program.
one_at_a_time() {
    small "$scratch/one"
    tool bglc $'tell started\nwait 30000'
    "$cli" generate small.LWM --app-path home >/dev/null 2>&1 &
    first=$!
    for ((i = 0; i < 300; ++i)); do [ -e home/started ] && break || sleep 0.1; done
    ! "$cli" generate small.LWM --app-path home --language US >second || fail "two generations"
    grep -q 'Another generation is running' second || fail "not told why: $(cat second)"
    kill -TERM $first
    ! wait $first 2>/dev/null || fail "it did not end"
    for ((i = 0; i < 50; ++i)); do
        grep -aqs "^$PWD/home/bglc[.]exe" /proc/[0-9]*/cmdline && sleep 0.1 || break
    done
    [ $i -lt 50 ] || fail "its tool runs on"
    echo "one at a time, and the tool ends with it"
}

# Whatever the memory, a message or a whole run.
memory() {
    small "$scratch/memory"
    awk '/^0100/ { n = 1000; m = 600; printf "0100  %d  %d  %d\r\n", n + 1, n + 1, n * m; next }
         /^0120/ { for (o = 0; o < n; ++o) {
             printf "      \"\"\r\n      \"\"\r\n       %d  %d", o + 2, m
             print "  0  1  0  4100  32  1  1  21  0  0  0  135  4  0  0  1  16  0  0  0  1  1\r"
             for (k = 0; k < 6; ++k) print "     \"\"\r"
             for (k = 0; k < m; ++k) printf "       %.2f  %.2f\r\n", \
                 60 + o % 40 * 70 + 30 * cos(k * 6.283 / m), \
                 60 + int(o / 40) * 70 + 30 * sin(k * 6.283 / m) } }
         { print }' small.LWM >large.LWM
    seen=0
    for kilobytes in 40000 60000 100000 150000 200000; do
        status=0
        (ulimit -v $kilobytes && "$cli" generate large.LWM --app-path home --language US) >printed 2>&1 ||
            status=$?
        [ $status = 0 ] || { [ $status = 1 ] && grep -q 'needs more memory' printed; } ||
            fail "with $kilobytes KB: status $status, $(tail -1 printed)"
        ! grep -q '^message.*generation needs' printed || seen=$((seen + 1))
    done
    [ $seen -gt 0 ] || fail "no generation ran out of memory"
    echo "memory: $seen generations ran out, told each time"
}

generations kill &
jobs=$!
generations 28 &
jobs="$jobs $!"
(saves)
(one_at_a_time)
(memory)
for job in $jobs; do wait "$job"; done
