# What win-session and win-with have in common, for them to read in: a virtual display and a Wine server of a run's
# own. They have a folder `work` for it and a function `die`. Nothing here inherits descriptor 9, the session's lock.
# shellcheck shell=bash

xvfb_pid=

# Sets `wineserver` to its place; empty if there is none.
find_wineserver() {
    local candidate
    wineserver=$(command -v wineserver || true)
    for candidate in /usr/lib/wine/wineserver /usr/lib/wine/wineserver64; do
        [ -n "$wineserver" ] || { [ -x "$candidate" ] && wineserver=$candidate; }
    done
}

# start_display WxH [XVFB-OPTION...]: exports DISPLAY and XAUTHORITY; the display takes a number that is free.
start_display() {
    local screen=$1 cookie='' number
    local auth=()
    shift
    command -v Xvfb >/dev/null || die "Xvfb is missing. Install the packages with: scripts/setup"
    # A cookie of its own keeps other users of the machine off the display.
    export XAUTHORITY=$work/Xauthority
    : >"$XAUTHORITY"
    if command -v xauth >/dev/null; then
        cookie=$(od -An -N16 -tx1 /dev/urandom | tr -d ' \n')
        xauth -q -f "$XAUTHORITY" add :0 . "$cookie" 2>/dev/null
        auth=(-auth "$XAUTHORITY")
    fi
    Xvfb -displayfd 8 -screen 0 "${screen}x24" -nolisten tcp -noreset "${auth[@]}" "$@" \
        8>"$work/display" >"$work/xvfb.log" 2>&1 9>&- &
    xvfb_pid=$!
    for _ in $(seq 100); do
        [ -s "$work/display" ] && break
        kill -0 "$xvfb_pid" 2>/dev/null || { cat "$work/xvfb.log" >&2; die "Xvfb did not start"; }
        sleep 0.1
    done
    [ -s "$work/display" ] || die "Xvfb did not answer within 10 s"
    number=$(tr -d ' \n' <"$work/display")
    export DISPLAY=:$number
    [ -z "$cookie" ] || xauth -q -f "$XAUTHORITY" add ":$number" . "$cookie" 2>/dev/null
}

stop_display() {
    [ -z "$xvfb_pid" ] || { kill "$xvfb_pid" 2>/dev/null && wait "$xvfb_pid" 2>/dev/null; }
}

# start_server [COMMAND...]: the server of $WINEPREFIX, and its desktop; programs are started below COMMAND.
start_server() {
    setsid "$wineserver" -p </dev/null >/dev/null 2>&1 9>&- &
    wait $! 2>/dev/null
    # A program that waits for input until the server stops. Without any, the desktop process would end a second after
    # the last one, and come up with the next: it held on to that one's output then, and whoever read it waited on.
    mkfifo "$work/nothing"
    "$@" wine cmd <>"$work/nothing" >/dev/null 2>&1 9>&- &
    "$@" wine rundll32 user32.dll,GetDesktopWindow </dev/null >/dev/null 2>&1 9>&-
}

stop_server() {
    "$wineserver" -k >/dev/null 2>&1 9>&-
    timeout 20 "$wineserver" -w >/dev/null 2>&1 9>&-
}
