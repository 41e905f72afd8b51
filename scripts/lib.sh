# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What the commands in this folder share. A command sources it first, names each of its steps with
# `step`, and ends with the exit status of the step that failed, named in the last line.

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
command_name=$(realpath --relative-to="$root" "$0")
current_step=
step_began=0
started_processes=()
temporary_directory=

# Names what happens from here on, and tells how long the step before took.
step() {
    tell_time
    current_step=$1
    step_began=$SECONDS
    printf '== %s\n' "$current_step"
}

tell_time() {
    [[ -z $current_step ]] || printf -- '-- %s: %d s\n' "$current_step" $((SECONDS - step_began))
}

# Ends the command with a message.
fail() {
    printf '%s: %s\n' "$command_name" "$1" >&2
    exit 1
}

# Ends what the command started, the last first, and names the step that failed.
finish() {
    local status=$?
    stop_started
    [[ -z $temporary_directory ]] || rm -rf "$temporary_directory"
    tell_time
    [[ -z $current_step ]] || printf -- '-- %s in all: %d s\n' "$command_name" "$SECONDS"
    ((status == 0)) || printf '%s: failed at: %s\n' "$command_name" "${current_step:-start}" >&2
    exit "$status"
}
trap finish EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# Ends all that was started and still runs, the last first.
stop_started() {
    local i
    for ((i = ${#started_processes[@]} - 1; i >= 0; --i)); do
        kill "${started_processes[i]}" 2>/dev/null || true
        wait "${started_processes[i]}" 2>/dev/null || true
    done
    started_processes=()
}

# Makes $temporary_directory, which goes when the command ends.
make_temporary_directory() {
    [[ -n $temporary_directory ]] || temporary_directory=$(mktemp -d)
}

# The packages of some groups in packages.txt, one a line.
packages_of() {
    awk -v groups=" $* " '
        /^\[/ { wanted = index(groups, " " substr($1, 2, length($1) - 2) " ") }
        /^[a-z0-9]/ && wanted { print $1 }' "$root/scripts/packages.txt"
}

# Those of the packages given as arguments that dpkg does not know as installed.
missing_of() {
    dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null |
        awk '$2 == "installed" { print $1 }' | sort -u |
        comm -13 - <(printf '%s\n' "$@" | sort -u) || true
}

# Runs a command as root, through sudo where that is needed.
as_root() {
    if ((EUID == 0)); then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "needs root or sudo for: $*"
    fi
}

# require_packages GROUP...: installs what is missing of these groups, and says what.
require_packages() {
    local packages missing
    mapfile -t packages < <(packages_of "$@")
    ((${#packages[@]} > 0)) || fail "scripts/packages.txt has no group of: $*"
    command -v dpkg-query >/dev/null ||
        fail "no dpkg here; install what scripts/packages.txt names, then use the CMake presets"
    mapfile -t missing < <(missing_of "${packages[@]}")
    ((${#missing[@]} > 0)) || return 0
    step "install ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
        "${missing[@]}"
    mapfile -t missing < <(missing_of "${packages[@]}")
    ((${#missing[@]} == 0)) || fail "could not install ${missing[*]}"
}

# build PRESET [TARGET...]: configures where that was not done yet, and builds.
build() {
    local preset=$1
    shift
    step "build ($preset)"
    (
        cd "$root"
        [[ -f build/$preset/build.ninja ]] || cmake --preset "$preset"
        cmake --build --preset "$preset" ${1:+--target "$@"}
    )
}

# Starts an X server of our own with a window manager, and points DISPLAY to it.
start_display() {
    start_x_server 1280x800
    start_window_manager
    unset WAYLAND_DISPLAY
    export QT_QPA_PLATFORM=xcb
}

# start_x_server SIZE: starts an X server of our own without one, and points DISPLAY to it.
start_x_server() {
    step "start Xvfb"
    make_temporary_directory
    local number_file=$temporary_directory/display
    rm -f "$number_file"
    # Without -noreset it starts anew when the first look at it has ended, and refuses openbox.
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$number_file" \
        2>"$temporary_directory/xvfb.log" &
    started_processes+=($!)
    wait_until 10 test -s "$number_file" || fail "Xvfb did not start: $(cat "$temporary_directory/xvfb.log")"
    DISPLAY=:$(tr -d '\n' <"$number_file")
    export DISPLAY
    # The server names its display a moment before it answers there.
    wait_until 10 display_answers || fail "Xvfb does not answer at $DISPLAY"
}

start_window_manager() {
    step "start openbox"
    openbox --sm-disable >"$temporary_directory/openbox.log" 2>&1 &
    started_processes+=($!)
    wait_until 10 window_manager_runs || fail "openbox did not start: $(cat "$temporary_directory/openbox.log")"
}

# Starts a session bus of our own, on which assistive technology is at work, and points to it.
start_session_bus() {
    step "start a session bus"
    make_temporary_directory
    local address_file=$temporary_directory/bus-address
    export XDG_RUNTIME_DIR=$temporary_directory/runtime GSETTINGS_BACKEND=memory
    export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
    mkdir --mode=700 "$XDG_RUNTIME_DIR"
    unset AT_SPI_BUS_ADDRESS
    dbus-daemon --session --nofork --nopidfile --print-address=3 3>"$address_file" \
        2>"$temporary_directory/bus.log" &
    started_processes+=($!)
    wait_until 10 test -s "$address_file" || fail "no bus started: $(cat "$temporary_directory/bus.log")"
    DBUS_SESSION_BUS_ADDRESS=$(cat "$address_file")
    export DBUS_SESSION_BUS_ADDRESS
}

# start_weston WIDTH HEIGHT SCALE [OPTION...]: starts an X server of our own, and on it a Wayland
# compositor with two outputs of this size beside each other, and points WAYLAND_DISPLAY to that.
start_weston() {
    local width=$1 height=$2 scale=$3
    start_x_server $((2 * width * scale))x$((height * scale))
    step "start Weston"
    XDG_RUNTIME_DIR=$(mktemp -d "$temporary_directory/runtime.XXXXXX")
    export XDG_RUNTIME_DIR WAYLAND_DISPLAY=wayland-hintreels
    weston --backend=x11-backend.so --use-pixman --no-config --idle-time=0 \
        --socket="$WAYLAND_DISPLAY" --output-count=2 --width="$width" --height="$height" \
        --scale="$scale" "${@:4}" >"$temporary_directory/weston.log" 2>&1 &
    started_processes+=($!)
    wait_until 30 weston_runs || fail "Weston did not start: $(cat "$temporary_directory/weston.log")"
    xdotool windowmove --sync "$(weston_output 1)" $((width * scale)) 0
    # Without a window manager nobody else brings the keyboard there.
    xdotool windowfocus --sync "$(weston_output 0)"
    export QT_QPA_PLATFORM=wayland
}

# weston_output NUMBER: the X server's window for an output.
weston_output() {
    xwininfo -root -tree | awk -v name="\"Weston Compositor - screen$1\"" 'index($0, name) { print $1 }'
}

weston_runs() {
    [[ -S $XDG_RUNTIME_DIR/$WAYLAND_DISPLAY && -n $(weston_output 0) && -n $(weston_output 1) ]]
}

display_answers() {
    xprop -root _NET_SUPPORTING_WM_CHECK >/dev/null 2>&1
}

# A window manager names its supporting window on the root window once it is ready.
window_manager_runs() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# wait_until SECONDS COMMAND...: runs the command every 50 ms until it succeeds; fails after that time.
wait_until() {
    local end=$((${EPOCHREALTIME//[!0-9]/} + $1 * 1000000))
    shift
    until "$@"; do
        ((${EPOCHREALTIME//[!0-9]/} < end)) || return 1
        sleep 0.05
    done
}
