#!/usr/bin/env bash
# session.sh PROGRAM EXAMPLE_DIR CLI
#
# Works the built program on a virtual screen with real keys and clicks: opens the example, draws,
# places a texture and links to it, looks about, switches modes, makes a new project of the
# example's map, generates, quits. Fails when a picture of the window is empty, a key or click has
# no effect, the player makes something else of the same acts, a dialog is left over or the program
# doesn't end with 0.
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

# Waits for the dialog with that title and gives it the keyboard.
dialog() {
    await "the dialog $1" titled "^$1\$"
    xdotool windowfocus --sync "$(tail -n 1 "$scratch/found")"
}

# Presses Return in whatever lies above the main window until a command succeeds: a key sent before
# a box has the focus is lost.
enter_until() {
    local box end=$((SECONDS + limit))
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || fail "waited in vain for $*"
        for box in $(windows); do
            [ "$box" = "$main" ] && continue
            xdotool windowfocus "$box" 2>/dev/null && key Return || true
        done
        sleep 0.2
    done
}

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
at_click() { xdotool mousemove --window "$main" "$1" "$2" click 1; }
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

# --- a texture: placed, sized by a corner, and the example's polygon linked to it -----------------
convert -size 64x48 gradient:white-black -type TrueColor "BMP3:$scratch/home/Ash.bmp"
does "the button of textures" at_click 836 37
at_click 866 37
at_click 600 500
dialog "Texture modification/creation"
key F4
dialog "Find a texture"
key Return
await "the end of the picker" has_windows 2
dialog "Texture modification/creation"
key Return
await "the end of the texture's dialog" has_windows 1
xdotool windowfocus --sync "$main"
press 620 520
at 651 543
does "sizing" xdotool mousedown 1 mousemove --window "$main" 700 570 mouseup 1
at_click 929 37
at 640 560
xdotool click --repeat 2 --delay 50 1 click 3
await "the question of the link" has_windows 2
keep link
enter_until has_windows 1
xdotool windowfocus --sync "$main"
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
click Cmd_TrtIma
click Cmd_New_Ima
press 600 500
dblclick DirFic
click Cmd_Ok
click Cmd_Ok
press 620 520
release 620 520
press 651 543
move 700 570
release 700 570
click Cmd_Sel_Crb_Ima
dblclick 640 560
answer yes
press 640 560 right
write $scratch/played_out.LWM
END
# The last object, the links, and the last texture from that object's first point on: the canvas does
# not begin where the window does.
made() {
    tr -d '\r' <"$1" | awk '/^0(1[2-8]|20)0/ { Section = $1 }
        Section == "0180" && NF == 7 { Ima = $0 }
        Section != "" { next }
        NF == 2 && /^ / && !/"/ { P[++N] = $1 " " $2 }
        NF > 2 { N = 0 }
        NF == 24 && $11 != 0 { print "link", $11 }
        END { split(P[1], A); for (I = 1; I <= N; ++I) { split(P[I], B); print B[1] - A[1], B[2] - A[2] }
            split(Ima, T); print T[1], T[2] - A[1], T[3] - A[2], T[4] - A[1], T[5] - A[2] }'
}
[ "$(made "$scratch/Island.LWM" | wc -l)" -eq 7 ] || fail "not all was drawn and linked"
[ "$(made "$scratch/Island.LWM")" = "$(made "$scratch/played_out.LWM")" ] ||
    fail "the window and the player make different things"
does "Ctrl+Z" key ctrl+z # the link: its polygon lies elsewhere, and would keep the mode

# --- looking about and switching modes ---------------------------------------------------------
does "the wheel" xdotool mousemove --window "$main" 640 430 click 4
does "the zoom key" key alt+KP_Subtract
does "the File menu" xdotool mousemove --window "$main" 20 10 click 1
keep menu
does "Escape in the menu" key Escape
key Escape # out of the menu bar
does "Ctrl+L" key ctrl+l # large squares, by the menu's shortcut
key F1
dialog 'Keys and modes'
keep help
key Escape
await "the end of the help page" has_windows 1
xdotool windowfocus --sync "$main"
for letter in e l w r d; do
    does "Alt+$letter" key "alt+$letter"
    await "one window in the mode of Alt+$letter" has_windows 1
    keep "mode_$letter"
done
is_painted || fail "the window is empty"

# --- a project from nothing, of the example's map -------------------------------------------------
key ctrl+n
await "the question before a new project" has_windows 2
enter_until titled '^New File$'
choose_file() { # the title of the file dialog, and the name to type
    key F4
    dialog "$1"
    xdotool type --delay 5 "$2"
    key Return
    await "the end of the dialog $1" has_windows 2
    dialog "New File"
}
dialog "New File"
choose_file "File Name" "$scratch/First.LWM"
key Tab space
choose_file "Map File" "$scratch/Island.bmp"
key Tab space
dialog "Fix NW/SE points in the map"
key Tab Tab Tab # past the map and its buttons
for degrees in S36:54:00 W15:25:12 S37:26:24 W14:34:48; do xdotool type --delay 5 "$degrees"; key Tab; done
keep calibration
key Return
await "the end of the calibration" has_windows 2
dialog "New File"
key shift+Tab space
choose_file "BGL name" "$scratch/First.bgl"
key Tab
choose_file "BGL name" "$scratch/First_Excl.bgl"
key Tab Tab Tab # over the added altitude, its unit and the simulator
for where in Bgl Raw; do
    key Tab F4
    dialog "LC and WC $where directory"
    key Return
    await "the end of the directory's dialog" has_windows 2
    dialog "New File"
done
keep new_project
key Tab Return
await "the new project" titled 'First\.LWM$'
await "one window" has_windows 1
xdotool windowfocus --sync "$main"

# --- drawing in it and generating: the compilers are not there, which is told -------------------
does "Alt+R" key alt+r
at 300 300
key alt+n
dialog "Polygons/Lines"
key Return
await "the end of the dialog" has_windows 1
xdotool windowfocus --sync "$main"
press 420 310
press 400 400
does "Escape" key Escape
key ctrl+s
await "the new project's file" test -s "$scratch/First.LWM"
key alt+g
dialog "Missing tools"
keep tools
key Return # the sources only
dialog "Report of the generation"
keep report
key Escape
await "the end of the report" has_windows 1
source=Terrafold\$_Poly_LWM.asm
"$cli" generate "$scratch/First.LWM" --app-path "$scratch/other" --create --dry-run >"$scratch/play.log" ||
    fail "the command line does not generate"
undated() { tail -n +3 "$1/$source"; }
cmp <(undated "$scratch/home") <(undated "$scratch/other") || fail "the window generates something else"
xdotool windowfocus --sync "$main"
await "a picture after generating" is_painted
keep generated

# --- quitting: the question is answered with Yes, which saves ---------------------------------
rm "$scratch/First.LWM"
key ctrl+q
await "the question" has_windows 2
keep question
has_ended() { ! kill -0 "$app" 2>/dev/null; }
enter_until has_ended
status=0
wait "$app" || status=$?
app=
[ "$status" -eq 0 ] || fail "the program ended with $status"
[ -s "$scratch/First.LWM" ] || fail "the project was not saved"
! ls "$scratch/home/Temp" | grep -qF '$$$_' || fail "map tiles are left"
echo "window test: all well"
