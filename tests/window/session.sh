#!/usr/bin/env bash
# session.sh PROGRAM EXAMPLE_DIR CLI
#
# Works the built program on a virtual screen with real keys and clicks: opens the example,
# draws, looks about, switches modes, generates, quits. Fails when a picture of the window is empty, a
# key or click has no effect, what was drawn is not what the player draws, a dialog is left over or the program doesn't end with 0.
set -euo pipefail

program=$1
example=$2
cli=$3
limit=${TERRAFOLD_WINDOW_TEST_LIMIT:-60} # seconds to wait for anything

scratch=$(mktemp -d)
screen= app=
finish() {
    [ -z "$app" ] || kill "$app" 2>/dev/null || true
    [ -z "$screen" ] || kill "$screen" 2>/dev/null || true
    rm -rf "$scratch"
}
trap finish EXIT

fail() {
    echo "window test: $*" >&2
    [ ! -s "$scratch/log" ] || sed 's/^/    /' "$scratch/log" >&2
    if [ -n "${TERRAFOLD_WINDOW_TEST_SHOTS:-}" ]; then shot "$TERRAFOLD_WINDOW_TEST_SHOTS/failed.png"; fi
    exit 1
}

# Waits until a command succeeds.
await() {
    local what=$1 end=$((SECONDS + limit))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || fail "waited in vain for $what"
        kill -0 "$app" 2>/dev/null || fail "the program ended while waiting for $what"
        sleep 0.1
    done
}

shot() { import -silent -window root "$1"; }
picture() { import -silent -window root -depth 8 rgb:- | md5sum; }
windows() { xdotool search --onlyvisible --pid "$app" 2>/dev/null || true; }
nb_windows() { windows | wc -l; }
has_windows() { [ "$(nb_windows)" -eq "$1" ]; }
changed() { [ "$(picture)" != "$before" ]; }
keep() { [ -z "${TERRAFOLD_WINDOW_TEST_SHOTS:-}" ] || shot "$TERRAFOLD_WINDOW_TEST_SHOTS/$1.png"; }

# Does something and waits until the screen shows another picture.
does() {
    local what=$1
    shift
    before=$(picture)
    "$@"
    await "an effect of $what" changed
}

key() { xdotool key --clearmodifiers "$@"; }

is_painted() {
    shot "$scratch/shot.png"
    [ "$(convert "$scratch/shot.png" -format %k info:)" -gt 100 ]
}

# --- a screen, a home in which the program has been before, a copy of the example -------------
Xvfb -displayfd 4 -screen 0 1400x950x24 -nolisten tcp 4>"$scratch/display" 2>/dev/null &
screen=$!
app=$screen await "the screen" test -s "$scratch/display"
export DISPLAY=":$(cat "$scratch/display")"

mkdir -p "$scratch/home/Resource"
mkdir -m 700 "$scratch/run"
printf '[Terrafold]\r\nLanguage=US\r\nFl1Fois=1\r\n' >"$scratch/home/Resource/Terrafold.Ini"
cp "$example"/Island.LWM "$example"/Island.bmp "$scratch/"

TERRAFOLD_HOME="$scratch/home" XDG_RUNTIME_DIR="$scratch/run" HOME="$scratch/run" \
    QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1 \
    "$program" "$scratch/Island.LWM" >"$scratch/log" 2>&1 &
app=$!

titled() { xdotool search --onlyvisible --name "$1" >"$scratch/found" 2>/dev/null && [ -s "$scratch/found" ]; }
await "the project in the window" titled 'Island\.LWM$'
main=$(head -n 1 "$scratch/found")
await "one window" has_windows 1
xdotool windowfocus --sync "$main"
await "a picture of the map" is_painted
keep opened

# --- drawing an object with mouse and keys; the player draws the same ----------------------------
at() { xdotool mousemove --window "$main" "$1" "$2"; }
press() { does "a press at $1 $2" xdotool mousemove --window "$main" "$1" "$2" click 1; }
does "Alt+R" key alt+r
at 300 300
key alt+n
await "the dialog of the object" has_windows 2
keep attributes
await "the focus in the dialog" titled '^Polygons/Lines$'
xdotool windowfocus --sync "$(head -n 1 "$scratch/found")"
key Return
await "the end of the dialog" has_windows 1
xdotool windowfocus --sync "$main"
press 420 310
press 500 260
press 560 380
keep drawing
does "Escape" key Escape
at 428 305
does "Alt+O" key alt+o
press 428 305
press 410 350
does "Alt+I" key alt+i
press 440 450
keep drawn
rm "$scratch/Island.LWM"
key ctrl+s
await "the saved project" test -s "$scratch/Island.LWM"

cp "$example"/Island.LWM "$scratch/played.LWM"
"$cli" play - --app-path "$scratch/home" --language US >"$scratch/play.log" <<END || fail "the player did not play"
file $scratch/played.LWM
click Mnu_File_Open
move 640 430
key Alt+R
move 300 300
key Alt+N
click Cmd_Ok
press 420 310
press 500 260
press 560 380
key Esc
move 428 305
key Alt+O
press 428 305
press 410 350
key Alt+I
press 440 450
write $scratch/played_out.LWM
END
# The last object from its first point on: the canvas does not begin where the window does.
shape() {
    tr -d '\r' <"$1" | awk '/^0120/ { exit } NF == 2 && /^ / && !/"/ { P[++N] = $1 " " $2 }
        NF > 2 { N = 0 }
        END { split(P[1], A); for (I = 1; I <= N; ++I) { split(P[I], B); print B[1] - A[1], B[2] - A[2] } }'
}
[ "$(shape "$scratch/Island.LWM" | wc -l)" -eq 5 ] || fail "not all points were drawn"
[ "$(shape "$scratch/Island.LWM")" = "$(shape "$scratch/played_out.LWM")" ] ||
    fail "the window and the player draw different objects"

# --- looking about and switching modes ---------------------------------------------------------
does "the wheel" xdotool mousemove --window "$main" 640 430 click 4
does "the zoom key" key alt+KP_Subtract
does "the File menu" xdotool mousemove --window "$main" 20 10 click 1
keep menu
does "Escape in the menu" key Escape
key Escape # out of the menu bar
for letter in e l w r d; do
    does "Alt+$letter" key "alt+$letter"
    await "one window in the mode of Alt+$letter" has_windows 1
    keep "mode_$letter"
done
is_painted || fail "the window is empty"

# --- generating: the compilers are not there, so boxes come up --------------------------------
key alt+g
answer_boxes() {
    local box
    for box in $(windows); do
        [ "$box" = "$main" ] && continue
        xdotool windowfocus "$box" 2>/dev/null && key Return || true
        boxes=$((boxes + 1))
    done
    [ -e "$scratch/home/TmpRt.Sca" ] && has_windows 1
}
boxes=0
await "the end of generating" answer_boxes
[ "$boxes" -gt 0 ] || fail "no message came while generating"
[ -s "$scratch/home/Terrafold\$_Poly_LWM.asm" ] || fail "nothing was generated"
xdotool windowfocus --sync "$main"
await "a picture after generating" is_painted
keep generated

# --- quitting: the question is answered with Yes, which saves ---------------------------------
rm "$scratch/Island.LWM"
key ctrl+q
await "the question" has_windows 2
keep question
# A key sent before the box has the focus is lost, so it is sent until it works.
end=$((SECONDS + limit))
while kill -0 "$app" 2>/dev/null; do
    [ "$SECONDS" -lt "$end" ] || fail "the program did not end"
    for box in $(windows); do
        [ "$box" = "$main" ] && continue
        xdotool windowfocus "$box" 2>/dev/null && key Return || true
    done
    sleep 0.2
done
status=0
wait "$app" || status=$?
app=
[ "$status" -eq 0 ] || fail "the program ended with $status"
[ -s "$scratch/Island.LWM" ] || fail "the project was not saved"
! ls "$scratch/home/Temp" | grep -qF '$$$_' || fail "map tiles are left"
echo "window test: $boxes boxes answered, all well"
