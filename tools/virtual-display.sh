# shellcheck shell=bash
# Runs the program where there is no display: on an X server without a screen, with a window
# manager and a session bus. All of these end with the program. Sourced by ./run, never run.

# shellcheck source=tools/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

picture=$root/build/run.png
log=$root/build/run.log

program_id=
servers=()
scratch=

require_virtual_display() {
    require_commands Xvfb openbox dbus-daemon xprop import identify setsid setpriv
}

# Starts a program of the virtual display in the background. It runs in a session of its own, so
# that Ctrl-C does not reach it, and ends with this script in any case.
start_server() {
    setsid setpriv --pdeathsig TERM "$@" >>"$log" 2>&1 &
    servers+=("$!")
}

# The same for a program that, once it is ready, writes its address to descriptor 3. Stores the
# address in the variable named by the first argument.
start_server_and_read() {
    local variable=$1 pipe
    shift
    exec {pipe}< <(exec setsid setpriv --pdeathsig TERM "$@" 3>&1 >>"$log" 2>&1)
    servers+=("$!")
    read -r -t 20 -u "$pipe" "${variable?}" || fail "$1 did not start; see $log."
}

# Terminates a process, kills it after five seconds, and returns when it is gone.
end_process() {
    local id=$1 tries
    kill -TERM "$id" 2>/dev/null || return 0
    for ((tries = 0; tries < 50; tries++)); do
        kill -0 "$id" 2>/dev/null || return 0
        sleep 0.1
    done
    kill -KILL "$id" 2>/dev/null || true
}

end_virtual_display() {
    trap '' INT TERM HUP
    local i
    [[ -z $program_id ]] || end_process "$program_id"
    for ((i = ${#servers[@]} - 1; i >= 0; i--)); do
        end_process "${servers[i]}"
    done
    [[ -z $scratch ]] || rm -rf "$scratch"
}

# Repeats a command ten times a second until it succeeds, for the given number of seconds at most.
wait_until() {
    local tries=$(($1 * 10))
    shift
    until "$@"; do
        ((tries-- > 0)) || return 1
        sleep 0.1
    done
}

window_manager_is_ready() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 0x
}

has_session_bus() {
    [[ -n ${DBUS_SESSION_BUS_ADDRESS:-} || -S ${XDG_RUNTIME_DIR:-}/bus ]]
}

start_virtual_display() {
    local number
    # Without -noreset the server resets when its last client disconnects. That may be the xprop
    # below, just while openbox connects.
    start_server_and_read number Xvfb -displayfd 3 -screen 0 1280x800x24 -noreset -nolisten tcp
    export DISPLAY=:$number
    if ! has_session_bus; then
        start_server_and_read DBUS_SESSION_BUS_ADDRESS dbus-daemon --session --nofork \
            --print-address=3
        export DBUS_SESSION_BUS_ADDRESS
    fi
    start_server openbox
    wait_until 10 window_manager_is_ready || fail "openbox did not start; see $log."
}

program_runs() {
    kill -0 "$program_id" 2>/dev/null
}

# The first window in the window manager's list; only Wuffer has windows here.
first_window() {
    xprop -root _NET_CLIENT_LIST 2>/dev/null | sed -n 's/.*# \(0x[0-9a-f]*\).*/\1/p'
}

# A window that has not been painted yet is completely black.
is_drawn() {
    [[ $(import -silent -window "$1" png:- 2>/dev/null |
        identify -format '%[fx:maxima > 0]' - 2>/dev/null) == 1 ]]
}

window_is_drawn() {
    local window
    window=$(first_window)
    [[ -n $window ]] && is_drawn "$window"
}

window_is_drawn_or_program_ended() {
    window_is_drawn || ! program_runs
}

take_picture() {
    if wait_until 20 window_is_drawn_or_program_ended && program_runs &&
        import -silent -frame -window "$(first_window)" "$picture"; then
        say "A picture of its window is in build/run.png."
    elif program_runs; then
        say "It has not shown a window, so there is no picture."
    fi
}

# Runs the given command line; returns when it ends, with its exit code.
run_on_virtual_display() {
    trap end_virtual_display EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
    mkdir -p "$root/build"
    rm -f "$picture" "$log"
    scratch=$(mktemp -d)
    export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$scratch}
    start_virtual_display

    setpriv --pdeathsig TERM "$@" &
    program_id=$!
    say "There is no display here, so Wuffer runs on a virtual one, $DISPLAY. Ctrl-C ends it."
    say "To watch and use it, start a VNC server, for instance: x11vnc -localhost -display $DISPLAY"
    take_picture
    wait "$program_id"
}
