# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# To be sourced: drives the real program on the current display as a user would. Needs xdotool and GraphicsMagick. The
# program uses a temporary home directory, $home, so that the user's settings and log stay untouched.

home=$(mktemp -d)
program=
main=
trap 'if [ -n "$program" ]; then kill "$program" 2>/dev/null || true; fi; rm -rf "$home"' EXIT

# fail WHAT: ends the script with a screenshot, if $screen is set, and the log of the program.
fail() {
    echo "$(basename "$0"): $1" >&2
    if [ -n "${screen:-}" ]; then
        gm import -window root "$screen" && echo "The screen at this moment: $screen" >&2
    fi
    echo "The program's log:" >&2
    cat "$home/GrisalLog.txt" >&2 || true
    exit 1
}

running() { kill -0 "$program" 2>/dev/null; }
ended() { ! running; }

# wait_for WHAT COMMAND...: waits until the command succeeds, at most about a minute.
wait_for() {
    local what=$1
    shift
    for _ in $(seq 600); do
        if "$@" >/dev/null 2>&1; then return; fi
        running || fail "the program ended while waiting for $what"
        sleep 0.1
    done
    fail "waited in vain for $what"
}

window_named() { xdotool search --onlyvisible --name "$1"; }
gone() { ! window_named "$1"; }

# Whether two consecutive screenshots are equal. The screenshot is then in $home/now.ppm.
still() {
    gm import -window root "$home/now.ppm"
    cmp -s "$home/now.ppm" "$home/last.ppm" && return
    mv "$home/now.ppm" "$home/last.ppm"
    return 1
}

# start COMMAND...: starts the program and waits for its window, $main. The locale is fixed, so that the window titles
# do not depend on the user's language.
start() {
    local title='^Lumio Grisal \(Alpha\)$'
    HOME=$home XDG_CONFIG_HOME=$home/.config XDG_CACHE_HOME=$home/.cache XDG_DATA_HOME=$home/.local/share \
        LC_ALL=C.UTF-8 LANGUAGE=en "$@" &
    program=$!
    wait_for "the window" window_named "$title"
    main=$(window_named "$title" | head -n 1)
}

# size WIDTH HEIGHT: resizes the window and gives it the keyboard focus.
size() {
    xdotool windowsize "$main" "$1" "$2"
    xdotool windowfocus --sync "$main"
}

# type_into DIALOG TEXT: enters a path in a file dialog and accepts it.
type_into() {
    wait_for "the dialog \"$1\"" window_named "^$1\$"
    xdotool windowfocus --sync "$(window_named "^$1\$" | tail -n 1)"
    xdotool type --delay 20 "$2"
    xdotool key Return
    wait_for "the end of the dialog \"$1\"" gone "^$1\$"
    xdotool windowfocus --sync "$main"
}

# open_picture FILE TITLE: opens a file, given by its path relative to $home, and waits until the window title ends with
# TITLE.
open_picture() {
    xdotool key ctrl+o
    type_into "Open Image" "$1"
    wait_for "the opened picture" window_named "$2\$"
}

# save_as FILE: saves under this name in the folder of the opened picture.
save_as() {
    xdotool key ctrl+shift+s
    type_into "Save image" "$1"
}

# quit: quits the program by key and expects exit status 0.
quit() {
    xdotool windowfocus --sync "$main"
    xdotool key ctrl+q
    for _ in $(seq 600); do
        ended && break
        sleep 0.1
    done
    ended || fail "the program does not quit"
    wait "$program" || fail "the program ended with status $?"
}
