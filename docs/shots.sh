#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Takes the documentation's pictures from the real programs, on a screen that nobody sees.
# usage: shots.sh GFPQ_HOST IMAGE_DIRECTORY [PICTURE...]     (all pictures if none is named)
#
# The programs are worked with the keyboard, so the pictures do not depend on fonts or sizes. A picture is taken when
# the window has stopped changing.
set -euo pipefail

readonly HOST=$(readlink -f "$1")
readonly TOOL=$(dirname "$HOST")/gfpdb
mkdir -p "$2"
readonly IMAGES=$(readlink -f "$2")
shift 2
readonly WANTED=("$@")
readonly DOCS=$(dirname "$(readlink -f "$0")")

# Shown in the pictures, so it is the same everywhere.
readonly WORK=/tmp/gfpq-shots
readonly PARTS=$WORK/flash-parts

readonly CHECKS_OF_A_STILL_WINDOW=100
readonly PAUSE=0.2
# A program on a busy machine takes its time; one minute is more than any window needs.
readonly LONGEST_WAIT=60
# Colours of a PNG: the dialog has few, and a small palette keeps the files small.
readonly COLORS=128

SERVER=
WINDOW_MANAGER=
PROGRAM=
WINDOW=
# The one that is being taken.
PICTURE=

say() { printf '%s\n' "$*" >&2; }

# wait_until WHAT COMMAND...: runs the command until it succeeds. Ends the script when that takes too long, or when the
# program has ended.
wait_until() {
    local what=$1 end=$((SECONDS + LONGEST_WAIT))
    shift
    until "$@"; do
        if [ -n "$PROGRAM" ] && ! kill -0 "$PROGRAM" 2>/dev/null; then
            say "The program has ended: $(cat "$WORK/host.err")"
            exit 1
        fi
        if ((SECONDS >= end)); then
            say "$what did not come within $LONGEST_WAIT s (picture $PICTURE)."
            exit 1
        fi
        sleep "$PAUSE"
    done
}

end_program() {
    [ -z "$PROGRAM" ] || kill "$PROGRAM" 2>/dev/null || true
    [ -z "$PROGRAM" ] || wait "$PROGRAM" 2>/dev/null || true
    PROGRAM=
}

clean_up() {
    end_program
    [ -z "$WINDOW_MANAGER" ] || kill "$WINDOW_MANAGER" 2>/dev/null || true
    [ -z "$SERVER" ] || kill "$SERVER" 2>/dev/null || true
    rm -rf "$WORK"
}
trap clean_up EXIT

start_screen() {
    mkfifo "$WORK/display"
    Xvfb -displayfd 4 -screen 0 2400x2100x24 -nolisten tcp 4>"$WORK/display" 2>"$WORK/xvfb.log" &
    SERVER=$!
    local number
    if ! read -r -t "$LONGEST_WAIT" number <"$WORK/display"; then
        say "Xvfb did not start: $(cat "$WORK/xvfb.log")"
        exit 1
    fi
    export DISPLAY=:$number
    openbox --sm-disable >"$WORK/openbox.log" 2>&1 &
    WINDOW_MANAGER=$!
    wait_until "The window manager" has_desktop
}

has_desktop() { xdotool get_num_desktops >/dev/null 2>&1; }

set_environment() {
    export HOME=$WORK/home XDG_CONFIG_HOME=$WORK/config XDG_RUNTIME_DIR=$WORK/run GFPDB_SETTINGS=$WORK/gfpdb.ini
    export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb USER=team
    unset LANGUAGE QT_SCALE_FACTOR QT_STYLE_OVERRIDE XDG_CURRENT_DESKTOP GFPQ_TRANSLATIONS
    mkdir -p "$HOME" "$XDG_CONFIG_HOME" "$PARTS"
    mkdir -m 700 -p "$XDG_RUNTIME_DIR"
}

# stored NAME AS [TEMPLATE]: a device with the values and flows of a built-in one, or a stored template.
stored() {
    local edits=(-e "s/^\(      \"name\": \)\"$1\"/\1\"$2\"/" -e 's/"total_die": null/"total_die": 1/')
    [ $# -lt 3 ] || edits+=(-e 's/"templates": \[\]/"no": []/' -e 's/"devices": \[$/"templates": [/'
        -e 's/"no": \[\]/"devices": []/' -e "s/\"template_name\": \"\"/\"template_name\": \"$3\"/")
    "$TOOL" export "$1" | sed "${edits[@]}" >"$WORK/record.json"
    "$TOOL" import --dir "$PARTS" --family 1 --scheme 7 "$WORK/record.json" >/dev/null
}

# changed NAME FROM TO: the device with another text in its record; the former state goes into the history.
changed() {
    "$TOOL" export --dir "$PARTS" "$1" | sed "s/$2/$3/" >"$WORK/record.json"
    "$TOOL" import --dir "$PARTS" --replace "$WORK/record.json" >/dev/null
}

# Devices and templates of a team.
fill_database() {
    stored MX25L25645G TEAM-256
    stored MX25L12845G TEAM-128
    stored MX25L25645G TEAM-256 "Team: 4-byte, slow erase"
    stored MX25L12845G TEAM-128 "Team: 3-byte"
    USER=ada changed TEAM-128 '"erase_size": "65536"' '"erase_size": "4096"'
    USER=ada changed TEAM-128 '"command": "0xD8"' '"command": "0x20"'
    USER=grace changed TEAM-256 '"voltage": "3.3V"' '"voltage": "2.7-3.6V"'
    USER=grace changed TEAM-256 '"voltage": "2.7-3.6V"' '"voltage": "3.3V"'
}

# A dark palette, the way a desktop hands it to Qt.
use_dark_palette() {
    export XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5
    cat >"$XDG_CONFIG_HOME/kdeglobals" <<'TXT'
[General]
widgetStyle=fusion
font=DejaVu Sans,9,-1,5,50,0,0,0,0,0

[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252

[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252

[Colors:View]
BackgroundNormal=27,30,32
BackgroundAlternate=35,38,41
ForegroundNormal=252,252,252

[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252

[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
TXT
}

use_light_palette() {
    unset XDG_CURRENT_DESKTOP KDE_SESSION_VERSION
    rm -f "$XDG_CONFIG_HOME/kdeglobals"
}

# open_program OPTIONS...: the host; its window has the focus then.
open_program() {
    end_program
    "$HOST" --database "$PARTS/" "$@" >"$WORK/host.out" 2>"$WORK/host.err" &
    PROGRAM=$!
    wait_until "The program's window" find_window
    xdotool windowactivate "$WINDOW"
    wait_until "The focus of the program's window" has_focus "$WINDOW"
}

# The program's window, once it is there. A search fails when a window goes while it looks at it.
find_window() {
    WINDOW=$(xdotool search --onlyvisible --limit 1 --pid "$PROGRAM" --name . 2>/dev/null) && [ -n "$WINDOW" ]
}

press() { xdotool key --clearmodifiers "$@"; }

times() {
    local count=$1 key=$2
    for ((i = 0; i < count; ++i)); do press "$key"; done
}

# The window of the program that has the focus: a dialog over the dialog, if there is one.
front_window() { WINDOW=$(xdotool getactivewindow 2>/dev/null); }
has_focus() { [ "$(xdotool getactivewindow 2>/dev/null)" = "$1" ]; }
# is_other_window WINDOW...: another one than these has the focus; it becomes the window.
is_other_window() {
    front_window || return 1
    local each
    for each in "$@"; do [ "$WINDOW" != "$each" ] || return 1; done
}
# wait_for_dialog WINDOW...: the dialog that comes over these.
wait_for_dialog() { wait_until "The dialog" is_other_window "$@"; }

# picture NAME [WINDOW]: what the window shows when it has stopped changing.
picture() {
    local name=$1 window=${2:-$WINDOW} before= now=
    for ((i = 0; i < CHECKS_OF_A_STILL_WINDOW; ++i)); do
        sleep "$PAUSE"
        import -window "$window" "$WORK/now.ppm"
        now=$(cksum <"$WORK/now.ppm")
        [ "$now" != "$before" ] || break
        before=$now
    done
    keep_picture "$WORK/now.ppm" "$name"
}

# keep_picture FILE NAME
keep_picture() {
    convert "$1" +dither -colors "$COLORS" -strip -define png:exclude-chunks=date,time \
        -define png:compression-level=9 "PNG8:$IMAGES/$2.png"
    say "$IMAGES/$2.png"
}

readonly DEVICE=(--dialog --family 1 --scheme 7 --device "TEAM-256")

# From the family, which has the focus first: to the titles of the pages, and along them.
go_to_page() {
    times 4 Tab
    times "$1" Right
}

# From the title of an operation page: past the palette into the chart, to the block of that number.
go_to_block() {
    times 2 Tab
    times "$1" Down
}

shot_device-page() {
    open_program "${DEVICE[@]}"
    picture device-page
}

# shot_page NAME PAGE BLOCK
shot_page() {
    open_program "${DEVICE[@]}"
    go_to_page "$2"
    go_to_block "$3"
    picture "$1"
}

shot_page-initialization() { shot_page page-initialization 1 1; }
shot_page-program() { shot_page page-program 2 2; }
shot_page-erase() { shot_page page-erase 3 2; }
shot_page-verify() { shot_page page-verify 4 1; }
shot_page-termination() { shot_page page-termination 5 1; }

shot_host-window() {
    open_program --family 1 --scheme 7 --device TEAM-256
    picture host-window
}

# programmer_settings ERASE PROGRAM VERIFY EXAMINE: what was entered the last time: a file, and a chip that has it but for
# some bytes.
programmer_settings() {
    mkdir -p "$XDG_CONFIG_HOME/gfpq"
    seq 20000 >"$WORK/firmware.bin"
    truncate -s 65536 "$WORK/firmware.bin"
    cp "$WORK/firmware.bin" "$WORK/chip.bin"
    printf 'changed' | dd of="$WORK/chip.bin" bs=1 seek=300 conv=notrunc status=none
    truncate -s 2097152 "$WORK/chip.bin"
    cat >"$XDG_CONFIG_HOME/gfpq/gfpq_host.conf" <<TXT
[programmer]
connection=emulated:$WORK/chip.bin
file=$WORK/firmware.bin
m_erase_check=$1
m_program_check=$2
m_verify_check=$3
m_examine_check=$4
TXT
}

# shot_programmer NAME KEYS...: the window after these keys, without and with what was entered.
shot_programmer() {
    local name=$1
    shift
    open_program --family 1 --scheme 7 --device MX25L1606E
    press "$@"
    picture "$name"
    rm -f "$XDG_CONFIG_HOME/gfpq/gfpq_host.conf"
}

shot_programmer-trial() { shot_programmer programmer-trial F6; }

shot_programmer-trace() {
    programmer_settings false false true false
    shot_programmer programmer-trace F5 alt+2
}

shot_programmer-data() {
    programmer_settings false false false true
    shot_programmer programmer-data F5 alt+3
}

# shot_dialog NAME KEY: the dialog that this key of the window opens.
shot_dialog() {
    open_program --family 1 --scheme 7 --device MX25L25645G
    local window=$WINDOW
    press "$2"
    wait_for_dialog "$window"
    picture "$1"
}

# shot_database NAME TEXT: the window of the database, with what this text finds.
shot_database() {
    open_program --family 1 --scheme 7 --device MX25L25645G
    local window=$WINDOW
    press ctrl+b
    wait_for_dialog "$window"
    xdotool type --delay 50 "$2"
    press Return
    picture "$1"
}

shot_device-database() { shot_database device-database "c2 20 19"; }

# show_history: the page of the history in the window of the database.
show_history() {
    open_program --family 1 --scheme 7 --device MX25L25645G
    local window=$WINDOW
    press ctrl+b
    wait_for_dialog "$window"
    press ctrl+Tab
}

shot_device-history() {
    show_history
    picture device-history
}

# What the newest change did: the state that it put an end to beside the next one.
shot_device-compare() {
    show_history
    local window=$WINDOW
    times 3 Tab
    press Down Down Return
    wait_for_dialog "$window"
    picture device-compare
}

# What an import would change: a device that is new, and one that differs from the stored one.
shot_import() {
    "$TOOL" export --dir "$PARTS" TEAM-256 | sed -e 's/"TEAM-256"/"TEAM-512"/' -e 's/"256Mb"/"512Mb"/' >"$WORK/team-512.json"
    "$TOOL" export --dir "$PARTS" TEAM-128 | sed 's/"total_die": 1/"total_die": 2/' >"$WORK/team-128.json"
    show_history
    local window=$WINDOW
    press alt+t i
    wait_for_dialog "$window"
    local chooser=$WINDOW
    xdotool type --delay 20 "\"$WORK/team-512.json\" \"$WORK/team-128.json\""
    press Return
    wait_for_dialog "$window" "$chooser"
    picture import
}

shot_dark-device-database() {
    use_dark_palette
    shot_database dark-device-database "c2 20 19"
    use_light_palette
}

shot_new-device() { shot_dialog new-device ctrl+n; }
shot_duplicate() { shot_dialog duplicate ctrl+d; }

# The database is gone when the device is applied.
shot_message() {
    open_program "${DEVICE[@]}"
    local dialog=$WINDOW
    mv "$PARTS" "$PARTS-away"
    # From the family, which comes first, to the button that comes last.
    press shift+Tab space
    wait_for_dialog "$dialog"
    picture message
    mv "$PARTS-away" "$PARTS"
}

shot_template-editor() {
    open_program --dialog --family 1 --scheme 7
    local dialog=$WINDOW
    # From the family, over the page title, the list and the fields, to the template's button.
    times 16 Tab
    press space
    wait_for_dialog "$dialog"
    press Down
    picture template-editor
}

shot_dark-device-page() {
    use_dark_palette
    open_program "${DEVICE[@]}"
    picture dark-device-page
    use_light_palette
}

shot_dark-erase() {
    use_dark_palette
    shot_page dark-erase 3 2
    use_light_palette
}

# shot_scaled NAME FACTOR
shot_scaled() {
    QT_SCALE_FACTOR=$2 shot_page "$1" 3 2
}

shot_scale-150() { shot_scaled scale-150 1.5; }
shot_scale-200() { shot_scaled scale-200 2; }

shot_language-ja() {
    open_program "${DEVICE[@]}" --lang ja
    picture language-ja
}

# A page of paper, in the resolution of a screen.
shot_flow-charts() {
    "$TOOL" chart MX25L25645G --variant quad --paper a4 -o "$WORK/charts.pdf"
    pdftoppm -r 110 -singlefile "$WORK/charts.pdf" "$WORK/charts"
    keep_picture "$WORK/charts.ppm" flow-charts
}

readonly PICTURES=(flow-charts device-page page-initialization page-program page-erase page-verify page-termination template-editor
    host-window programmer-trial programmer-trace programmer-data new-device duplicate device-database dark-device-database device-history device-compare import message dark-device-page dark-erase scale-150 scale-200 language-ja)

main() {
    rm -rf "$WORK"
    mkdir -p "$WORK"
    set_environment
    fill_database
    start_screen
    local pictures=("${WANTED[@]}")
    [ ${#pictures[@]} -gt 0 ] || pictures=("${PICTURES[@]}")
    for PICTURE in "${pictures[@]}"; do
        "shot_$PICTURE"
    done
}

main
