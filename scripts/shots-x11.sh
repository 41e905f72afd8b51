# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What shots.sh asks of a display: an X server of our own with a window manager.

# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

# start_shots_display SCALE
start_shots_display() { start_display; }

# become_application LOG COMMAND...
become_application() {
    exec "${@:2}" -qwindowgeometry 1280x776+0+0 2>"$1"
}

# The X server's window that a picture is taken of.
window_of_pictures() { echo root; }

# A picture of the screen lacks the pointer.
draw_pointer() {
    convert "$1" -fill white -stroke black -strokewidth 1.2 \
        -draw "translate $2,$3 path 'M 0,0 L 0,17 L 4,13 L 7,19 L 9.6,17.8 L 6.8,12 L 12,12 Z'" "$1"
}

# open_popups LOG: a line with left, top, width and height for each, the last opened one last. No
# window manager frames a popup, so it is a child of the root window.
open_popups() {
    local window
    for window in $(xdotool search --maxdepth 1 --onlyvisible --class '^sketchpad$' 2>/dev/null); do
        xdotool getwindowgeometry --shell "$window" 2>/dev/null |
            awk -F= '{ value[$1] = $2 } END { print value["X"], value["Y"], value["WIDTH"], value["HEIGHT"] }'
    done
}

# dialog_corner WIDTH HEIGHT: a dialog knows where it stands.
dialog_corner() { echo 0 0; }

# is_pinned LOG TITLE
is_pinned() {
    pinned_window "$2" >/dev/null
}

# move_pinned_window TITLE
move_pinned_window() {
    xdotool windowmove --sync "$(pinned_window "$1")" 850 90
}

pinned_window() {
    xdotool search --onlyvisible --name "^$1\$" 2>/dev/null
}
